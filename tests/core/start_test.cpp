// The start: order of calls, rectangles, what every failure releases. The canvas: redraw, push, queries of the host.
#include <cmath>

#include "osd_page.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using namespace testing;

// What a start with a canvas of 1000 by 1000 calls.
static const std::string START = "log 6 bSupport4K:0,stMenuRect info(0, 0, 1000, 1000)\n; create resource 1000x1000; "
                                 "open font.ttf 32; open bold_font.ttf 32; alloc menu_mem 4000000 0; "
                                 "alloc menu_scale 4000000 0; "
                                 "canvas 1000x1000 32 bits, pitch 4000, format 0x16362004; set callback; ";

class StartTest : public MenuTest {
protected:
    static std::string text(const SDL_Rect& r) { return format("%d %d %d %d; ", r.x, r.y, r.w, r.h); }

    // The calls since the last look.
    static std::string called() { return joined(std::exchange(calls().lines, {}), "; ") + "; "; }
};

TEST_F(StartTest, LibrariesStartInOrderAndGoBackOnFailure)
{
    for (const auto& [failing, said, all] :
         {std::tuple("SDL_Init", "SDL Init Fail, s32Ret = -1\n", "SDL_Init 0xd001; "),
          {"IMG_Init", "IMG Init Fail.\n", "SDL_Init 0xd001; IMG_Init 3; SDL_Quit; "},
          {"TTF_Init", "TTF Init Fail.\n", "SDL_Init 0xd001; IMG_Init 3; TTF_Init; IMG_Quit; SDL_Quit; "}}) {
        failCall(failing);
        EXPECT_EQ(printed([] { EXPECT_EQ(OSD_MENU_InitOpensourceRes(), -1); }), said);
        EXPECT_EQ(called(), all);
    }
}

TEST_F(StartTest, CanvasFollowsTheConfiguration)
{
    ASSERT_EQ(init({2, 2, 0, Config().place, true}), 0);
    EXPECT_EQ(called(), START);
    EXPECT_THAT(platform().log.at(0), MatchesRegex("OSD_MENU_InitSdkRes\\[[0-9]+\\] "));
    EXPECT_EQ(enMenuStyle, 2u);
    EXPECT_EQ(gstMenuMgr.pfnBusinessFunc, business);
    EXPECT_EQ(gstMenuMgr.pfnGetDataZoneParent, dataZoneParent);
    EXPECT_EQ(platform().update, OSD_MENU_UpdateCanvas);
    EXPECT_EQ(gstMenuMgr.pstSurface->pixels, gstMenuMgr.stCanvas.stMem.pvVirAddr);
    // large base, pixel format, rectangles of menu, popup and popup with message, surface
    const std::tuple<OSD_BOOL, uint32_t, const char*, const char*> cases[] = {
        {0, 0, "96 8 656 756; 342 291 164 189; 206 291 436 189; ", "656x756 16 bits, pitch 1312, format 0x15331002"},
        {2, 1, "96 8 656 756; 342 291 164 189; 206 291 436 189; ", "656x756 16 bits, pitch 1312, format 0x15321002"},
        {1, 2, "192 12 1312 1512; 684 579 328 378; 411 579 874 378; ",
         "1312x1512 32 bits, pitch 5248, format 0x16362004"},
    };
    for (const auto& [big, pixels, rects, surface] : cases) {
        ASSERT_EQ(init({0, pixels, big, {0.05f, 0.005f, 0.3409f, 0.7f}, false}), 0);
        EXPECT_EQ(linesOf({"canvas"}).back(), std::string("canvas ") + surface);
        EXPECT_EQ(gstMenuMgr.f32Scale, big == 1 ? 1.5f : 1.0f);
        const tagOSD_MENU_CANVAS_S& seen = gstMenuMgr.stCanvas;
        EXPECT_EQ(text(seen.stMenuRect) + text(gstMenuMgr.stPopRect) + text(gstMenuMgr.stPopMsgRect), rects);
        EXPECT_EQ(text(seen.stBaseRect), big == 1 ? "0 0 3840 2160; " : "0 0 1920 1080; ");
        EXPECT_EQ(seen.enPixFmt, pixels);
        EXPECT_EQ(seen.u8CanvasAttr, 128);
        EXPECT_EQ((std::vector{seen.f32X, seen.f32Y, seen.f32W, seen.f32H}),
                  (std::vector{0.05f, 0.005f, 0.3409f, 0.7f}));
        stop();
    }
}

TEST_F(StartTest, FailureReleasesInReverseAndLeavesTheMenuRefusing)
{
    const char* noFont = "[MENU:F:L] Error! Load Font Error.\n";
    // call that fails, from and to its n-th, the first of START not called any more, what is released and printed
    const std::tuple<const char*, int, int, const char*, const char*, const char*> cases[] = {
        {"create", 1, 1, "open font", "", ""},
        {"TTF_OpenFontRW", 1, 1, "open bold", "", noFont},
        {"TTF_OpenFontRW", 2, 3, "alloc menu_mem", "open font.ttf 32; close plain; ", noFont},
        {"alloc", 1, 1, "alloc menu_scale", "close bold; close plain; ", ""},
        {"alloc", 2, 2, "canvas", "release menu_mem; close bold; close plain; ", ""},
        {"SDL_CreateRGBSurfaceWithFormatFrom", 1, 1, "set callback",
         "release menu_scale; release menu_mem; close bold; close plain; ", "Create RGB Surface failed!\n"}};
    for (const auto& [call, n, last, before, released, said] : cases) {
        failCall(call, n, last);
        EXPECT_EQ(printed([this] { EXPECT_EQ(init(), -1); }), said);
        EXPECT_EQ(called(), START.substr(0, START.find(before)) + released + "log 3  failed\n; ") << call;
        EXPECT_EQ(printed([] { EXPECT_EQ(OSD_MENU_RenderCanvas(), -1); }), "[F:L] osd not init\n");
    }
}

TEST_F(StartTest, SenselessConfigurationDoesNoHarm)
{
    const std::pair<tagOSD_MENU_RECT_S, int> cases[] = {{{0.0f, 0.0f, 1e30f, 0.5f}, -1},
                                                        {{0.0f, 0.0f, -0.5f, 0.5f}, -1},
                                                        {{NAN, 0.0f, 0.5f, 0.5f}, 0},
                                                        {{1e30f, 1e30f, 0.5f, 0.5f}, 0}};
    for (const auto& [place, result] : cases) {
        EXPECT_EQ(init({0, 2, 0, place, false}), result) << place.f32X << " " << place.f32W;
        openPage("<I ItemIndex='Gain' Attr='CONST_TXT'/>");
        EXPECT_EQ(OSD_MENU_RenderCanvas(), result) << place.f32X << " " << place.f32W;
        EXPECT_EQ(osdMenuReleaseSinglePage(), 0);
    }
    EXPECT_EQ(init({0, 3, 0, {0.0f, 0.0f, 0.5f, 0.5f}, false}), OSD_MENU_RenderCanvas()) << "whatever SDL says to it";
}

TEST_F(StartTest, RedrawPushesUnderTheLock)
{
    start({0, 2, 0, {0.05f, 0.05f, 0.35f, 0.7f}, false});
    EXPECT_EQ(OSD_MENU_RenderCanvas(), 0); // a closed menu is hidden with its pixels as they are
    tagPAGE_NODE_S* page = openPage("");
    calls().lines.erase(calls().lines.begin() + 1, calls().lines.end());
    page->enLayout = static_cast<tagPAGE_LAYOUT_E>(6);
    EXPECT_EQ(OSD_MENU_RenderCanvas(), -1); // a layout that nothing draws isn't pushed
    page->enLayout = PAGE_LAYOUT_VERTICAL;
    EXPECT_EQ(OSD_MENU_RenderCanvas(), 0);
    EXPECT_THAT(calls().lines, ElementsAre("push 0", "fill 96,56 672x756 800a0a0a", "push 1"));
    EXPECT_THAT(platform().pushes, Each(AllOf(Field(&Push::locked, true), Field(&Push::canvas, &gstMenuMgr))));
    EXPECT_THAT(platform().pushes.at(0).pixels, Each(0xA5));
    EXPECT_EQ(platform().pushes.at(1).pixels.at((56 * 672 + 96) * 4), 0x0A) << "pushed as drawn";
}

TEST_F(StartTest, ChannelCallbackShowsOnlyAnOpenMenu)
{
    start();
    auto* attach = reinterpret_cast<OSD_ATTACH_INFO_S*>(this);
    EXPECT_EQ(platform().update(1, attach), 0);
    openPage("");
    EXPECT_EQ(platform().update(1, attach), 0);
    EXPECT_EQ(platform().update(0, attach), 0);
    EXPECT_THAT(linesOf({"push", "fill"}), ElementsAre("push one 0", "push one 1", "push one 0"));
    EXPECT_THAT(platform().pushes, Each(AllOf(Field(&Push::locked, false), Field(&Push::attach, attach))));
}

TEST_F(StartTest, Queries)
{
    const auto answers = [] {
        return format("%u %u %u", OSD_MENU_GetMenuStatus(), OSD_Menu_HasSubPage(), OSD_MENU_HasSubPageWithOutIcon());
    };
    EXPECT_EQ(answers(), "0 1 0") << "closed";
    tagITEM_NODE_S* item = itemAt(openPage("<I ItemIndex='More' Attr='SUBPAGE' SubPage='s'/>")->stItemList, 0);
    EXPECT_EQ(answers(), "1 1 1");
    item->bActive = 0;
    EXPECT_EQ(answers(), "1 0 0") << "nothing selected";
    gstPageMgr.astPage[0].enLayout = PAGE_LAYOUT_ICON;
    EXPECT_EQ(answers(), "1 1 0");
    item->enAttr = COMMON;
    EXPECT_EQ(answers(), "1 0 0");
}
