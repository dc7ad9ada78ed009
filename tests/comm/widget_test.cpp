// Composite widgets: recorded calls, pixels, failures.
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace {

constexpr SDL_Rect MENU = {0, 0, 1536, 864};

enum Widget { BAR, BAR_KETH, ARROWS };

} // namespace

class WidgetTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        start({0, 2, 0, {0.0f, 0.0f, 0.8f, 0.8f}, false});
        ASSERT_EQ(TTF_SetFontSize(gstMenuMgr.pstFont, 28), 0);
        calls().lines.clear();
    }

    int build(Widget widget, OSD_BOOL selected, SDL_Rect rect, int index = 0, int count = 1)
    {
        char text[] = "Cinema";
        TTF_Font* font = gstMenuMgr.pstFont;
        return widget == ARROWS ? OSD_COMM_GetTxtSurfaceAroundArrows(font, text, 28, selected, rect, &surface)
               : widget == BAR
                   ? OSD_COMM_GetBarTxtSurface(font, text, index, count, 28, selected, rect, &surface)
                   : OSD_COMM_GetBarTxtSurfaceWithKETH(font, text, index, count, 28, selected, rect, &surface);
    }

    void discard()
    {
        SDL_FreeSurface(surface);
        surface = nullptr;
        calls().lines.clear();
    }

    SDL_Surface* surface = nullptr;
};

TEST_F(WidgetTest, BarPlacesSliderAndText)
{
    ASSERT_EQ(build(BAR, 1, {40, 50, 760, 40}, 50, 101), 0);
    EXPECT_THAT(linesOf({"blit"}),
                ElementsAre("blit bar 532x20 at 0,10 on 760x40", "blit block 26x40 at 253,0 on 760x40",
                            "blit plain 28 white 'Cinema' at 570,0 on 760x40"));
    EXPECT_THAT(linesOf({"free"}),
                ElementsAre("free loaded bar", "free scaled bar", "free loaded block", "free scaled block",
                            "free plain 28 white 'Cinema'", "free block 26x40", "free bar 532x20"));
    EXPECT_EQ(surface->format->format, static_cast<uint32_t>(SDL_PIXELFORMAT_ARGB4444));
    EXPECT_EQ(pixelAt(surface, 0, 0), 0u) << "transparent beside the bar";
    EXPECT_EQ(pixelAt(surface, 531, 29), 0xFF0000FFu);
    EXPECT_EQ(pixelAt(surface, 278, 39), 0xFFFF0000u);
    discard();
}

TEST_F(WidgetTest, BlockTravelsTheWholeBar)
{
    const struct {
        int index, count, x;
    } cases[] = {{0, 101, 0}, {100, 101, 296},          {1, 4, 98}, {1, 2, 296}, {5, 1, 0},
                 {0, 0, 0},   {10000000, 20000001, 148}};
    for (const auto& c : cases) {
        for (Widget widget : {BAR, BAR_KETH}) {
            ASSERT_EQ(build(widget, 0, {0, 0, 445, 30}, c.index, c.count), 0);
            EXPECT_THAT(linesOf({"blit b", "blit p"}), ElementsAre("blit bar 311x15 at 0,7 on 445x30",
                                                                   format("blit block 15x30 at %d,0 on 445x30", c.x),
                                                                   "blit plain 28 grey 'Cinema' at 333,0 on 445x30"));
            discard();
        }
    }
}

TEST_F(WidgetTest, OnlyTheLayerOfADimBarIsDimmed)
{
    ASSERT_EQ(build(BAR_KETH, 0, {0, 0, 760, 40}, 50, 101), 0);
    EXPECT_THAT(linesOf({"alpha", "blit 760", "free plain", "free 760", "free b"}),
                ElementsAre("alpha 760x40 191", "blit 760x40 at 0,0 on 760x40", "free plain 28 grey 'Cinema'",
                            "free 760x40", "free block 26x40", "free bar 532x20"));
    EXPECT_EQ(pixelAt(surface, 10, 20) >> 24, 0xBBu);
    EXPECT_EQ(pixelAt(surface, 260, 20) >> 24, 0xBBu);
    EXPECT_EQ(pixelAt(surface, 570, 0), 0xFFBBBBBBu) << "grey text in four bits a channel";
    discard();
}

TEST_F(WidgetTest, TextStandsBetweenArrows)
{
    ASSERT_EQ(build(ARROWS, 0, {0, 0, 600, 50}), 0);
    EXPECT_EQ(calls().lines.front(), "measure plain 28 'Cinema'");
    EXPECT_THAT(linesOf({"blit", "alpha", "free plain", "free arrow"}),
                ElementsAre("alpha arrow_left 54x21 191", "blit arrow_left 54x21 at 0,21 on 600x50",
                            "blit plain 28 grey 'Cinema' at 66,0 on 600x50", "alpha arrow_right 54x21 191",
                            "blit arrow_right 54x21 at 198,21 on 600x50", "free arrow_right 54x21",
                            "free plain 28 grey 'Cinema'", "free arrow_left 54x21"));
    discard();
}

TEST_F(WidgetTest, AlphaIsSetOnlyForTheFlagZero)
{
    for (Widget widget : {BAR, BAR_KETH, ARROWS}) {
        for (OSD_BOOL selected : {1, 2}) {
            ASSERT_EQ(build(widget, selected, {0, 0, 600, 50}), 0);
            EXPECT_THAT(linesOf({"alpha"}), IsEmpty());
            EXPECT_EQ(linesOf({selected == 1 ? "blit plain 28 white" : "blit plain 28 grey"}).size(), 1u);
            discard();
        }
    }
    ASSERT_EQ(build(BAR, 0, {0, 0, 600, 50}), 0);
    EXPECT_THAT(linesOf({"alpha"}), IsEmpty()) << "the plain bar only dims its text";
    discard();
}

TEST_F(WidgetTest, FailingBuilderLeavesNothing)
{
    const std::string failed = "F L failed\n";
    const std::string arrow = "[F:L] Draw nav_arrow fail\n";
    const struct {
        Widget widget;
        int n;
        const char* call;
        std::string last; // line, after those of the picture or text itself
    } cases[] = {{BAR, 1, "SDL_CreateRGBSurfaceWithFormat", failed},
                 {BAR, 1, "access", failed},
                 {BAR, 2, "access", failed},
                 {BAR, 1, "TTF_RenderUTF8_Blended", failed},
                 {BAR_KETH, 1, "SDL_CreateRGBSurfaceWithFormat", failed},
                 {BAR_KETH, 2, "SDL_CreateRGBSurfaceWithFormat", failed},
                 {BAR_KETH, 1, "IMG_Load", failed},
                 {BAR_KETH, 2, "SDL_ConvertSurfaceFormat", failed},
                 {BAR_KETH, 1, "TTF_SetFontSize", failed},
                 {ARROWS, 1, "SDL_CreateRGBSurfaceWithFormat", failed},
                 {ARROWS, 1, "access", arrow},
                 {ARROWS, 1, "TTF_RenderUTF8_Blended", failed},
                 {ARROWS, 2, "rotozoomSurfaceXY", arrow}};
    const size_t alive = calls().surfaces.size();
    for (const auto& c : cases) {
        surface = gstMenuMgr.pstSurface;
        failCall(c.call, c.n);
        const std::string output = printed([&] { EXPECT_EQ(build(c.widget, 1, {0, 0, 600, 50}), -1); });
        EXPECT_THAT(output, EndsWith(c.last)) << c.widget << " " << c.call;
        EXPECT_EQ(surface, gstMenuMgr.pstSurface);
        EXPECT_EQ(calls().surfaces.size(), alive) << c.widget << " " << c.call;
    }
}

TEST_F(WidgetTest, ArrowsBesideItemAndInTheCorner)
{
    SDL_Surface* canvas = gstMenuMgr.pstSurface;
    char turn[] = "arrow_all";
    EXPECT_EQ(OSD_COMM_DrawArrows(canvas, MENU, {100, 200, 300, 40}), 0);
    EXPECT_EQ(OSD_COMM_DrawArrows(canvas, MENU, {30, 200, 300, 20}), 0);
    EXPECT_EQ(OSD_COMM_DrawArrows(canvas, {64, 0, 1536, 864}, {100, 200, 300, 40}), 0);
    EXPECT_EQ(OSD_COMM_DrawTurnArrows(canvas, {192, 108, 1536, 864}, turn), 0);
    EXPECT_EQ(OSD_COMM_DrawSubPageEnter(canvas, MENU, {100, 200, 300, 40}, 1), 0);
    EXPECT_THAT(linesOf({"alpha"}), IsEmpty());
    EXPECT_EQ(OSD_COMM_DrawSubPageEnter(canvas, MENU, {100, 200, 300, 40}, 0), 0);
    EXPECT_THAT(linesOf({"alpha"}), ElementsAre("alpha nav_arrow 46x25 191"));
    EXPECT_THAT(blits(), ElementsAre("nav_arrow 46x25 at 38,207", "nav_arrow 46x25 at 0,198",
                                     "nav_arrow 46x25 at 64,207", "arrow_all 107x60 at 1421,799",
                                     "nav_arrow 46x25 at 419,214", "nav_arrow 46x25 at 419,214"));
}

TEST_F(WidgetTest, ConfirmPictureMovesThePen)
{
    char confirm[] = "confirm";
    SDL_Rect pen = {100, 200, 3, 4};
    EXPECT_EQ(OSD_COMM_DrawConfirmImg(gstMenuMgr.pstSurface, &pen, MENU, 1, confirm), 0);
    EXPECT_EQ(pen.x, 161);
    EXPECT_EQ(OSD_COMM_DrawConfirmImg(gstMenuMgr.pstSurface, &pen, MENU, 0, confirm), 0);
    EXPECT_EQ(pen.x, 222);
    EXPECT_THAT(blits(), ElementsAre("confirm 61x34 at 100,208", "confirm 61x34 at 161,208"));
    EXPECT_THAT(linesOf({"alpha"}), ElementsAre("alpha confirm 61x34 191"));
    EXPECT_EQ(pen.y, 200);
    EXPECT_EQ(pen.w, 3);
    EXPECT_EQ(pen.h, 4);

    pen.x = 1500; // clipped at the right edge: the pen moves by what was drawn
    EXPECT_EQ(OSD_COMM_DrawConfirmImg(gstMenuMgr.pstSurface, &pen, MENU, 1, confirm), 0);
    EXPECT_EQ(pen.x, 1536);
}

TEST_F(WidgetTest, MissingPictureIsToldTwice)
{
    char stem[] = "restart";
    SDL_Rect pen = {100, 200, 3, 4};
    SDL_Surface* canvas = gstMenuMgr.pstSurface;
    const struct {
        std::function<int()> draw;
        const char *stem, *line;
    } cases[] = {
        {[&] { return OSD_COMM_DrawArrows(canvas, MENU, MENU); }, "nav_arrow", "[F:L] Draw nav_arrow fail\n"},
        {[&] { return OSD_COMM_DrawSubPageEnter(canvas, MENU, MENU, 1); }, "nav_arrow", "[F:L] Draw nav_arrow fail\n"},
        {[&] { return OSD_COMM_DrawTurnArrows(canvas, MENU, stem); }, "restart", "[F:L] Draw nav_arrow fail\n"},
        {[&] { return OSD_COMM_DrawConfirmImg(canvas, &pen, MENU, 1, stem); }, "restart", "[F:L] Draw confirm fail\n"}};
    calls().missingFiles = {"nav_arrow.bmp", "restart.bmp"};
    for (const auto& c : cases) {
        EXPECT_EQ(printed([&] { EXPECT_EQ(c.draw(), -1); }),
                  format("F L failed, acFilePath = %s/pic/%s.bmp\n%s", OSD_RESOURCE_DIR, c.stem, c.line));
    }
    EXPECT_EQ(pen.x, 100);
}

TEST_F(WidgetTest, FrameLineAndBackground)
{
    SDL_Surface* canvas = gstMenuMgr.pstSurface;
    ASSERT_EQ(OSD_COMM_DrawMenuBg(canvas, MENU), 0);
    ASSERT_EQ(OSD_COMM_DrawRect(canvas, {20, 30, 100, 50}, 5, 0x40FF8020), 0);
    ASSERT_EQ(OSD_COMM_DrawLine(canvas, {200, 30, 100, 3}), 0);
    EXPECT_THAT(calls().lines,
                ElementsAre("fill 0,0 1536x864 800a0a0a", "fill 20,30 100x5 40ff8020", "fill 20,75 100x5 40ff8020",
                            "fill 20,30 5x50 40ff8020", "fill 115,30 5x50 40ff8020", "fill 200,30 100x3 white"));
    EXPECT_EQ(pixelAt(canvas, 24, 34), 0x40FF8020u);
    EXPECT_EQ(pixelAt(canvas, 25, 35), 0x800A0A0Au) << "replaced, not blended, and empty inside";
    EXPECT_EQ(pixelAt(canvas, 114, 74), 0x800A0A0Au);
    EXPECT_EQ(pixelAt(canvas, 119, 79), 0x40FF8020u);

    calls().lines.clear();
    failCall("SDL_FillRect", 3);
    EXPECT_EQ(printed([&] { EXPECT_EQ(OSD_COMM_DrawRect(canvas, {20, 30, 100, 50}, 5, 0xFFFFFFFF), -1); }), "");
    EXPECT_EQ(linesOf({"fill"}).size(), 3u) << "the sides before the failure stay";
    failCall("SDL_FillRect");
    EXPECT_EQ(OSD_COMM_DrawLine(canvas, MENU), -1);
    failCall("SDL_FillRect");
    EXPECT_EQ(OSD_COMM_DrawMenuBg(canvas, MENU), -1);
}
