// Pictures, texts and composite widgets: recorded calls, pixels, failures.
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::EndsWith;

#define PIC OSD_RESOURCE_DIR "/pic/"

namespace {

constexpr SDL_Rect MENU = {0, 0, 1536, 864};
constexpr SDL_Rect RIGHT = {64, 0, 1536, 864};

enum Widget { BAR, BAR_KETH, ARROWS };

} // namespace

class WidgetTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        start({0, 2, 0, {0.0f, 0.0f, 0.8f, 0.8f}, false});
        canvas = gstMenuMgr.pstSurface;
        ASSERT_EQ(TTF_SetFontSize(gstMenuMgr.pstFont, 28), 0);
    }

    int build(Widget widget, OSD_BOOL selected, SDL_Rect rect, int index = 0, int count = 1)
    {
        SDL_FreeSurface(std::exchange(surface, nullptr));
        calls().lines.clear();
        char text[] = "Cinema";
        TTF_Font* font = gstMenuMgr.pstFont;
        if (widget == ARROWS) {
            return OSD_COMM_GetTxtSurfaceAroundArrows(font, text, 28, selected, rect, &surface);
        }
        const auto bar = widget == BAR ? OSD_COMM_GetBarTxtSurface : OSD_COMM_GetBarTxtSurfaceWithKETH;
        return bar(font, text, index, count, 28, selected, rect, &surface);
    }

    int load(std::string stem, SDL_Rect rect) { return OSD_COMM_GetImgSurfaceByRect(stem.data(), rect, &surface); }

    void TearDown() override
    {
        SDL_FreeSurface(surface);
        MenuTest::TearDown();
    }

    SDL_Surface* canvas = nullptr;
    SDL_Surface* surface = nullptr;
};

TEST_F(WidgetTest, BarPlacesSliderAndText)
{
    ASSERT_EQ(build(BAR, 1, {40, 50, 760, 40}, 50, 101), 0);
    EXPECT_THAT(linesOf({"alpha", "blit"}),
                ElementsAre("blit bar 532x20 at 0,10 on 760x40", "blit block 26x40 at 253,0 on 760x40",
                            "blit plain 28 white 'Cinema' at 570,0 on 760x40"));
    EXPECT_EQ(surface->format->format, static_cast<uint32_t>(SDL_PIXELFORMAT_ARGB4444));
    EXPECT_EQ(pixelAt(surface, 0, 0), 0u) << "transparent beside the bar";
    EXPECT_EQ(pixelAt(surface, 531, 29), 0xFF0000FFu);
    EXPECT_EQ(pixelAt(surface, 278, 39), 0xFFFF0000u);
}

TEST_F(WidgetTest, BlockTravelsTheWholeBar)
{
    for (const auto& [index, count, x] :
         {std::tuple(0, 101, 0), {100, 101, 296}, {1, 4, 98}, {5, 1, 0}, {0, 0, 0}, {10000000, 20000001, 148}}) {
        ASSERT_EQ(build(BAR, 0, {0, 0, 445, 30}, index, count), 0);
        EXPECT_THAT(linesOf({"alpha", "blit"}),
                    ElementsAre("blit bar 311x15 at 0,7 on 445x30", format("blit block 15x30 at %d,0 on 445x30", x),
                                "blit plain 28 grey 'Cinema' at 333,0 on 445x30"));
    }
}

TEST_F(WidgetTest, OnlyTheLayerOfADimBarIsDimmed)
{
    ASSERT_EQ(build(BAR_KETH, 0, {0, 0, 760, 40}, 50, 101), 0);
    EXPECT_THAT(linesOf({"alpha", "blit", "free 760"}),
                ElementsAre("blit bar 532x20 at 0,10 on 760x40", "blit block 26x40 at 253,0 on 760x40",
                            "alpha 760x40 191", "blit 760x40 at 0,0 on 760x40",
                            "blit plain 28 grey 'Cinema' at 570,0 on 760x40", "free 760x40"));
    EXPECT_EQ(pixelAt(surface, 10, 20) >> 24, 0xBBu);
    EXPECT_EQ(pixelAt(surface, 570, 0), 0xFFBBBBBBu) << "grey text in four bits a channel";
    ASSERT_EQ(build(BAR_KETH, 2, {0, 0, 760, 40}), 0);
    EXPECT_THAT(linesOf({"alpha"}), testing::IsEmpty());
}

TEST_F(WidgetTest, TextStandsBetweenArrows)
{
    ASSERT_EQ(build(ARROWS, 0, {0, 0, 600, 50}), 0);
    EXPECT_EQ(calls().lines.front(), "measure plain 28 'Cinema'");
    EXPECT_THAT(linesOf({"blit", "alpha"}),
                ElementsAre("alpha arrow_left 54x21 191", "blit arrow_left 54x21 at 0,21 on 600x50",
                            "blit plain 28 grey 'Cinema' at 66,0 on 600x50", "alpha arrow_right 54x21 191",
                            "blit arrow_right 54x21 at 198,21 on 600x50"));
    ASSERT_EQ(build(ARROWS, 2, {0, 0, 600, 50}), 0);
    EXPECT_THAT(linesOf({"alpha"}), testing::IsEmpty());
}

TEST_F(WidgetTest, FailingBuilderLeavesNothing)
{
    const size_t alive = calls().surfaces.size();
    for (const Widget widget : {BAR, BAR_KETH, ARROWS}) {
        const int surfaces = widget == BAR_KETH ? 2 : 1;
        for (const auto& [call, n] : {std::pair("SDL_CreateRGBSurfaceWithFormat", surfaces),
                                      {"access", 1},
                                      {"access", 2},
                                      {"TTF_RenderUTF8_Blended", 1},
                                      {"TTF_SetFontSize", 1}}) {
            const bool arrow = widget == ARROWS && *call == 'a';
            failCall(call, n);
            const std::string output = printed([&] { EXPECT_EQ(build(widget, 1, {0, 0, 600, 50}), -1); });
            EXPECT_THAT(output, EndsWith(arrow ? "[F:L] Draw nav_arrow fail\n" : "F L failed\n")) << widget << call;
            EXPECT_EQ(surface, nullptr);
            EXPECT_EQ(calls().surfaces.size(), alive) << widget << " " << call;
        }
    }
}

TEST_F(WidgetTest, PicturesBesideItemsAndInTheCorner)
{
    char all[] = "arrow_all";
    char stem[] = "confirm";
    const SDL_Rect at = {100, 200, 300, 40};
    SDL_Rect pen = {1500, 200, 3, 4}; // clipped at the right edge: the pen moves by what was drawn
    const std::pair<std::function<int()>, const char*> cases[] = {
        {[&] { return OSD_COMM_DrawArrows(canvas, MENU, at); }, "blit nav_arrow 46x25 at 38,207"},
        {[&] { return OSD_COMM_DrawArrows(canvas, RIGHT, at); }, "blit nav_arrow 46x25 at 64,207"},
        {[&] { return OSD_COMM_DrawSubPageEnter(canvas, RIGHT, at, 1); }, "blit nav_arrow 46x25 at 419,214"},
        {[&] { return OSD_COMM_DrawTurnArrows(canvas, RIGHT, all); }, "blit arrow_all 107x60 at 1421,799"},
        {[&] { return OSD_COMM_DrawConfirmImg(canvas, &pen, MENU, 1, stem); }, "blit confirm 61x34 at 1500,208"}};
    for (const auto& [draw, blit] : cases) {
        EXPECT_EQ(draw(), 0);
        EXPECT_EQ(linesOf({"blit"}).back(), blit);
        failCall("access");
        const std::string output = printed([&draw = draw] { EXPECT_EQ(draw(), -1); });
        EXPECT_THAT(output, testing::MatchesRegex(".*bmp\n.F:L. Draw (nav_arrow|confirm) fail\n"));
    }
    EXPECT_EQ(pen.x, 1536);
    pen.x = 100;
    EXPECT_EQ(OSD_COMM_DrawSubPageEnter(canvas, MENU, at, 0), 0);
    EXPECT_EQ(OSD_COMM_DrawConfirmImg(canvas, &pen, MENU, 0, stem), 0);
    EXPECT_EQ(pen.x, 161);
    EXPECT_EQ(pen.y, 200);
    EXPECT_THAT(linesOf({"alpha"}), ElementsAre("alpha nav_arrow 46x25 191", "alpha confirm 61x34 191"));
}

TEST_F(WidgetTest, FrameLineAndBackground)
{
    ASSERT_EQ(OSD_COMM_DrawMenuBg(canvas, MENU), 0);
    ASSERT_EQ(OSD_COMM_DrawRect(canvas, {20, 30, 100, 50}, 5, 0x40FF8020), 0);
    ASSERT_EQ(OSD_COMM_DrawLine(canvas, {200, 30, 100, 3}), 0);
    EXPECT_THAT(calls().lines,
                ElementsAre("fill 0,0 1536x864 800a0a0a", "fill 20,30 100x5 40ff8020", "fill 20,75 100x5 40ff8020",
                            "fill 20,30 5x50 40ff8020", "fill 115,30 5x50 40ff8020", "fill 200,30 100x3 white"));
    EXPECT_EQ(pixelAt(canvas, 24, 34), 0x40FF8020u) << "replaced, not blended";

    failCall("SDL_FillRect", 3, 5);
    EXPECT_EQ(OSD_COMM_DrawRect(canvas, {20, 30, 100, 50}, 5, 0xFFFFFFFF), -1);
    EXPECT_EQ(calls().lines.size(), 9u) << "the sides before the failure stay";
    EXPECT_EQ(OSD_COMM_DrawLine(canvas, MENU), -1);
    EXPECT_EQ(OSD_COMM_DrawMenuBg(canvas, MENU), -1);

    stop();
    start({0, 1});
    ASSERT_EQ(OSD_COMM_DrawRect(gstMenuMgr.pstSurface, MENU, 5, 0x40FF8020), 0);
    EXPECT_EQ(pixelAt(gstMenuMgr.pstSurface, 4, 4), 0x44FF8822u) << "in four bits a channel";
}

TEST_F(WidgetTest, ExtremeRectangles)
{
    ASSERT_EQ(OSD_COMM_DrawLine(canvas, MENU), 0);
    const SDL_Rect below = {0, 2147483647, 40, 20};
    EXPECT_EQ(OSD_COMM_DrawRect(canvas, below, 5, 0x40FF8020) + OSD_COMM_DrawMenuBg(canvas, below), 0);
    EXPECT_EQ(pixelAt(canvas, 0, 863), 0xFFFFFFFFu);
    const SDL_Rect endless = {10, 10, 2147483647, 2147483647};
    EXPECT_EQ(OSD_COMM_DrawRect(canvas, endless, 5, 0x40FF8020), 0);
    EXPECT_EQ(pixelAt(canvas, 1535, 14), 0x40FF8020u);
    EXPECT_EQ(pixelAt(canvas, 1535, 863), 0xFFFFFFFFu);
    EXPECT_EQ(OSD_COMM_DrawMenuBg(canvas, endless), 0);
    EXPECT_EQ(pixelAt(canvas, 1535, 863), 0x800A0A0Au);
    EXPECT_EQ(pixelAt(canvas, 9, 9), 0xFFFFFFFFu);
}

TEST_F(WidgetTest, LoadsScalesConverts)
{
    ASSERT_EQ(load("bar", {7, 9, 300, 50}), 0);
    EXPECT_THAT(calls().lines, ElementsAre("access " PIC "bar.bmp", "load " PIC "bar.bmp", "zoom loaded bar 0 3 0.5 1",
                                           "convert scaled bar 0x15321002", "free loaded bar", "free scaled bar"));
    EXPECT_EQ(calls().surfaces[surface], "bar 300x50");
    EXPECT_EQ(pixelAt(surface, 150, 25), 0xFF0000FFu);
}

TEST_F(WidgetTest, FailuresReleaseInOrder)
{
    for (const auto& [call, output, freed] :
         {std::tuple("access", "F L failed, acFilePath = " PIC "bar.bmp\n", ""),
          {"IMG_Load", "F L failed\n", ""},
          {"rotozoomSurfaceXY", "F L failed\n", "free loaded bar"},
          {"SDL_ConvertSurfaceFormat", "F L failed\n", "free scaled bar, free loaded bar"}}) {
        calls().lines.clear();
        failCall(call);
        EXPECT_EQ(printed([&] { EXPECT_EQ(load("bar", {0, 0, 9, 9}), -1); }), output);
        EXPECT_EQ(joined(linesOf({"free "}), ", "), freed);
    }
    calls().pictureSize = 0;
    EXPECT_EQ(printed([&] { EXPECT_EQ(load("bar", {0, 0, 9, 9}), -1); }), "F L failed\n") << "nothing to scale";
    EXPECT_EQ(calls().lines.back(), "free loaded bar");
    const std::string stem(200, 's');
    const std::string cut = "F L failed, acFilePath = " + (PIC + stem).substr(0, 126) + "\n";
    EXPECT_EQ(printed([&] { EXPECT_EQ(load(stem, {0, 0, 9, 9}), -1); }), cut);
    EXPECT_EQ(surface, nullptr);
}

TEST_F(WidgetTest, PlainLoadTakesAWholePathAndPrintsNothing)
{
    std::string path = "/somewhere/else.png";
    ASSERT_EQ(OSD_COMM_GetImgSurface(path.data(), &surface), 0);
    EXPECT_THAT(calls().lines, ElementsAre("load /somewhere/else.png"));
    failCall("IMG_Load");
    SDL_Surface* const before = surface;
    EXPECT_EQ(printed([&] { EXPECT_EQ(OSD_COMM_GetImgSurface(path.data(), &surface), -1); }), "");
    EXPECT_EQ(surface, before);
}

TEST_F(WidgetTest, ColourFollowsFunctionAndSelection)
{
    TTF_Font* font = gstMenuMgr.pstFont;
    char text[] = "Gain";
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

TEST_F(WidgetTest, OpenersDegradeToTheRegularFont)
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
