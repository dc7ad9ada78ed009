#include "tests/fake/menu_test.h"

using namespace fake;

class TextSurfaceTest : public MenuTest {};

TEST_F(TextSurfaceTest, ColourFollowsFunctionAndSelection)
{
    start();
    TTF_Font* font = gstMenuMgr.pstFont;
    char text[] = "Gain";
    SDL_Surface* surface = nullptr;
    for (const auto& function :
         {OSD_COMM_GetTxtSurface, OSD_COMM_GetTxtSurfaceWithCursor, OSD_COMM_GetTolvaneTxtSurface}) {
        for (OSD_BOOL selected : {0, 1, 2}) { // only 1 is selected
            ASSERT_EQ(function(font, text, 17, selected, &surface), 0);
            const uint32_t colour = selected == 1 ? 0xFFFFFFFF : 0xFFBFBFBF;
            EXPECT_EQ(pixelAt(surface, 79, 29), function == OSD_COMM_GetTolvaneTxtSurface ? 0xFFFFCD25 : colour);
            EXPECT_EQ(calls().fonts[font].size, 17) << "the size stays on the font";
            SDL_FreeSurface(std::exchange(surface, nullptr));
        }
        failCall("TTF_SetFontSize");
        EXPECT_EQ(printed([&] { EXPECT_EQ(function(font, text, 20, 1, &surface), -1); }), "F L\n");
        failCall("TTF_RenderUTF8_Blended");
        EXPECT_EQ(printed([&] { EXPECT_EQ(function(font, text, 20, 1, &surface), -1); }), "");
        EXPECT_EQ(surface, nullptr);
    }
}

TEST_F(TextSurfaceTest, OpenersDegradeToTheRegularFont)
{
    const std::tuple<TTF_Font* (*)(), std::set<std::string>, std::string> cases[] = {
        {OSD_COMM_OpenTtfFont, {}, "plain"},
        {OSD_COMM_OpenTtfFont, {"font.ttf"}, ""},
        {OSD_COMM_OpenSelectTtfFont, {"font.ttf"}, "bold"},
        {OSD_COMM_OpenSelectTtfFont, {"bold_font.ttf"}, "plain"},
        {OSD_COMM_OpenTraditionalChineseTtfFont, {"font.ttf"}, "tc"},
        {OSD_COMM_OpenTraditionalChineseTtfFont, {"tcfont.ttf"}, "plain"},
        {OSD_COMM_OpenTraditionalChineseTtfFont, {"tcfont.ttf", "font.ttf"}, ""}};
    for (const auto& [function, missing, name] : cases) {
        calls().missingFiles = missing;
        TTF_Font* font = nullptr;
        const std::string output = printed([&, function = function] { font = function(); });
        EXPECT_EQ(output, name.empty() ? "[MENU:F:L] Error! Load Font Error.\n" : "");
        EXPECT_EQ(calls().fonts[font].name, name);
        EXPECT_THAT(linesOf({"open"}), testing::Not(testing::Contains(testing::HasSubstr("kept open"))));
        if (font != nullptr) {
            EXPECT_EQ(calls().fonts[font].size, 32);
            TTF_CloseFont(font);
        }
    }
    calls().fonts.erase(nullptr);
}
