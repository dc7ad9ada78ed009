#include "tests/fake/menu_test.h"

using namespace fake;

class TextSurfaceTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        start();
    }

    SDL_Surface* surface = nullptr;
    char text[8] = "Gain";
};

TEST_F(TextSurfaceTest, ColourFollowsFunctionAndSelection)
{
    const struct {
        int (*function)(TTF_Font*, char*, int, OSD_BOOL, SDL_Surface**);
        uint32_t colours[3]; // not selected, selected, another value
    } cases[] = {{OSD_COMM_GetTxtSurface, {0xFFBFBFBF, 0xFFFFFFFF, 0xFFBFBFBF}},
                 {OSD_COMM_GetTxtSurfaceWithCursor, {0xFFBFBFBF, 0xFFFFFFFF, 0xFFBFBFBF}},
                 {OSD_COMM_GetTolvaneTxtSurface, {0xFFFFCD25, 0xFFFFCD25, 0xFFFFCD25}}};
    for (const auto& c : cases) {
        for (OSD_BOOL selected : {0, 1, 2}) {
            ASSERT_EQ(c.function(gstMenuMgr.pstFont, text, 17, selected, &surface), 0);
            EXPECT_EQ(pixelAt(surface, 79, 29), c.colours[selected]);
            EXPECT_EQ(calls().fonts[gstMenuMgr.pstFont].size, 17) << "the size stays on the font";
            SDL_FreeSurface(surface);
        }
    }
}

TEST_F(TextSurfaceTest, FailureLeavesTheOutArgument)
{
    const struct {
        const char *call, *text, *printed;
    } cases[] = {{"TTF_SetFontSize", "Gain", "F L\n"}, {"TTF_RenderUTF8_Blended", "Gain", ""}, {"none", "", ""}};
    for (const auto& c : cases) {
        for (auto function : {OSD_COMM_GetTxtSurface, OSD_COMM_GetTolvaneTxtSurface}) {
            std::string content = c.text;
            failCall(c.call);
            surface = gstMenuMgr.pstSurface;
            EXPECT_EQ(printed([&] { EXPECT_EQ(function(gstMenuMgr.pstFont, content.data(), 20, 1, &surface), -1); }),
                      c.printed);
            EXPECT_EQ(surface, gstMenuMgr.pstSurface);
        }
    }
}

TEST_F(TextSurfaceTest, OpenersDegradeToTheRegularFont)
{
    const std::string error = "[MENU:F:L] Error! Load Font Error.\n";
    const struct {
        TTF_Font* (*function)();
        std::set<std::string> missing;
        std::string font, printed;
    } cases[] = {{OSD_COMM_OpenTtfFont, {}, "plain", ""},
                 {OSD_COMM_OpenTtfFont, {"font.ttf"}, "", error},
                 {OSD_COMM_OpenSelectTtfFont, {"font.ttf"}, "bold", ""},
                 {OSD_COMM_OpenSelectTtfFont, {"bold_font.ttf"}, "plain", ""},
                 {OSD_COMM_OpenTraditionalChineseTtfFont, {"font.ttf"}, "tc", ""},
                 {OSD_COMM_OpenTraditionalChineseTtfFont, {"tcfont.ttf"}, "plain", ""},
                 {OSD_COMM_OpenTraditionalChineseTtfFont, {"tcfont.ttf", "font.ttf"}, "", error}};
    for (const auto& c : cases) {
        calls().missingFiles = c.missing;
        TTF_Font* font = nullptr;
        EXPECT_EQ(printed([&] { font = c.function(); }), c.printed);
        EXPECT_EQ(font != nullptr ? calls().fonts[font].name : "", c.font);
        if (font != nullptr) {
            EXPECT_EQ(calls().fonts[font].size, 32);
            TTF_CloseFont(font);
        }
    }
}
