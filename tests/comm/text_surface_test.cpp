#include "tests/fake/menu_test.h"

using namespace fake;
using TextFunction = int (*)(TTF_Font*, char*, int, OSD_BOOL, SDL_Surface**);

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
        TextFunction function;
        OSD_BOOL selected;
        uint32_t colour;
    } cases[] = {{OSD_COMM_GetTxtSurface, 1, 0xFFFFFFFF},           {OSD_COMM_GetTxtSurface, 0, 0xFFBFBFBF},
                 {OSD_COMM_GetTxtSurface, 2, 0xFFBFBFBF},           {OSD_COMM_GetTxtSurfaceWithCursor, 1, 0xFFFFFFFF},
                 {OSD_COMM_GetTxtSurfaceWithCursor, 0, 0xFFBFBFBF}, {OSD_COMM_GetTolvaneTxtSurface, 1, 0xFFFFCD25},
                 {OSD_COMM_GetTolvaneTxtSurface, 0, 0xFFFFCD25}};
    for (const auto& c : cases) {
        ASSERT_EQ(c.function(gstMenuMgr.pstFont, text, 17, c.selected, &surface), 0);
        EXPECT_EQ(pixelAt(surface, 79, 29), c.colour);
        EXPECT_EQ(surface->w, 80);
        EXPECT_EQ(calls().fonts[gstMenuMgr.pstFont].size, 17) << "the size stays on the font";
        SDL_FreeSurface(surface);
    }
}

TEST_F(TextSurfaceTest, FailureLeavesTheOutArgument)
{
    const struct {
        const char* call;
        const char* text;
        const char* printed;
    } cases[] = {{"TTF_SetFontSize", "Gain", "F L\n"}, {"TTF_RenderUTF8_Blended", "Gain", ""}, {"none", "", ""}};
    for (TextFunction function :
         {OSD_COMM_GetTxtSurface, OSD_COMM_GetTxtSurfaceWithCursor, OSD_COMM_GetTolvaneTxtSurface}) {
        for (const auto& c : cases) {
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
    const struct {
        TTF_Font* (*function)();
        std::set<std::string> missing;
        const char* font;
        const char* printed;
    } cases[] = {
        {OSD_COMM_OpenTtfFont, {}, "plain", ""},
        {OSD_COMM_OpenTtfFont, {"font.ttf"}, nullptr, "[MENU:F:L] Error! Load Font Error.\n"},
        {OSD_COMM_OpenSelectTtfFont, {}, "bold", ""},
        {OSD_COMM_OpenSelectTtfFont, {"bold_font.ttf"}, "plain", ""},
        {OSD_COMM_OpenTraditionalChineseTtfFont, {"font.ttf"}, "tc", ""},
        {OSD_COMM_OpenTraditionalChineseTtfFont, {"tcfont.ttf"}, "plain", ""},
        {OSD_COMM_OpenTraditionalChineseTtfFont,
         {"tcfont.ttf", "font.ttf"},
         nullptr,
         "[MENU:F:L] Error! Load Font Error.\n"},
    };
    for (const auto& c : cases) {
        calls().missingFiles = c.missing;
        TTF_Font* font = nullptr;
        EXPECT_EQ(printed([&] { font = c.function(); }), c.printed);
        ASSERT_EQ(font != nullptr, c.font != nullptr);
        if (font != nullptr) {
            EXPECT_EQ(calls().fonts[font].name, c.font);
            EXPECT_EQ(calls().fonts[font].size, 32);
            TTF_CloseFont(font);
        }
    }
}
