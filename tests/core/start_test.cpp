// Initialisation: order of calls, rectangles, and what every failure releases.
#include <cmath>

#include "comm/surface.h"
#include "menu/core/manager.h"
#include "platform/media_service.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

namespace {

std::string text(const SDL_Rect& r) { return format("%d %d %d %d", r.x, r.y, r.w, r.h); }

// What a start with a canvas of 1000 by 1000 calls.
const std::vector<std::string> START = {"log 6 bSupport4K:0,stMenuRect info(0, 0, 1000, 1000)\n",
                                        "create resource",
                                        "open font.ttf 32",
                                        "open bold_font.ttf 32",
                                        "alloc menu_mem 4000000 0",
                                        "alloc menu_scale 4000000 0",
                                        "canvas 1000x1000 32 bits, pitch 4000, format 0x16362004",
                                        "set callback"};

} // namespace

class StartTest : public MenuTest {};

TEST_F(StartTest, LibrariesStartInOrderAndGoBackOnFailure)
{
    const struct {
        const char* failing;
        int result;
        const char* printed;
        std::vector<std::string> lines;
    } cases[] = {
        {"", 0, "", {"SDL_Init 0xd001", "IMG_Init 3", "TTF_Init"}},
        {"SDL_Init", -1, "SDL Init Fail, s32Ret = -1\n", {"SDL_Init 0xd001"}},
        {"IMG_Init", -1, "IMG Init Fail.", {"SDL_Init 0xd001", "IMG_Init 3", "SDL_Quit"}},
        {"TTF_Init", -1, "TTF Init Fail.", {"SDL_Init 0xd001", "IMG_Init 3", "TTF_Init", "IMG_Quit", "SDL_Quit"}}};
    for (const auto& c : cases) {
        calls().lines.clear();
        failCall(c.failing);
        EXPECT_THAT(printed([&] { EXPECT_EQ(OSD_MENU_InitOpensourceRes(), c.result); }), HasSubstr(c.printed));
        EXPECT_EQ(calls().lines, c.lines);
    }
}

TEST_F(StartTest, BuildsManagerCanvasAndSurface)
{
    gstPageMgr.s32PageCnt = 3; // left by nobody: the start closes the menu
    ASSERT_EQ(init({2, 2, 0, {0.0f, 0.0f, 0.5208f, 0.9259f}, true}), 0);

    EXPECT_EQ(calls().lines, START);
    EXPECT_THAT(platform().log.at(0).tag, MatchesRegex("OSD_MENU_InitSdkRes\\[[0-9]+\\] "));
    EXPECT_EQ(enMenuStyle, 2u);
    EXPECT_EQ(gstPageMgr.s32PageCnt, 0);
    EXPECT_EQ(gstMenuMgr.pfnBusinessFunc, business);
    EXPECT_EQ(gstMenuMgr.pfnGetDataZoneParent, dataZoneParent);
    EXPECT_EQ(platform().update, OSD_MENU_UpdateCanvas);
    EXPECT_EQ(gstMenuMgr.pstSurface->pixels, gstMenuMgr.stCanvas.stMem.pvVirAddr);
    EXPECT_EQ(text(gstMenuMgr.stPopRect), "375 375 250 250");
    EXPECT_EQ(text(gstMenuMgr.stPopMsgRect), "167 375 666 250");

    const tagOSD_MENU_CANVAS_S& seen = platform().canvasAtCreate; // before its memory exists
    EXPECT_EQ(seen.stMem.pvVirAddr, nullptr);
    EXPECT_EQ(seen.stScaleMem.pvVirAddr, nullptr);
    EXPECT_EQ(text(seen.stMenuRect), "0 0 1000 1000");
    EXPECT_EQ(text(seen.stBaseRect), "0 0 1920 1080");
    EXPECT_EQ(seen.enPixFmt, 2u);
    EXPECT_EQ(seen.f32H, 0.9259f);
    EXPECT_EQ(seen.u8CanvasAttr, 128);
}

TEST_F(StartTest, BaseAndPixelFormatFollowTheConfiguration)
{
    const struct {
        OSD_BOOL big;
        uint32_t format;
        float scale;
        const char* menu;
        const char* canvas;
    } cases[] = {
        {0, 0, 1.0f, "96 56 672 756", "canvas 672x756 16 bits, pitch 1344, format 0x15331002"},
        {2, 1, 1.0f, "96 56 672 756", "canvas 672x756 16 bits, pitch 1344, format 0x15321002"},
        {1, 2, 1.5f, "192 108 1344 1512", "canvas 1344x1512 32 bits, pitch 5376, format 0x16362004"},
    };
    for (const auto& c : cases) {
        ASSERT_EQ(init({0, c.format, c.big, {0.05f, 0.05f, 0.35f, 0.7f}, false}), 0);
        EXPECT_EQ(gstMenuMgr.f32Scale, c.scale);
        EXPECT_EQ(text(gstMenuMgr.stCanvas.stMenuRect), c.menu);
        EXPECT_THAT(linesOf({"canvas"}).back(), c.canvas);
        stop();
    }
}

TEST_F(StartTest, FailureReleasesInReverseAndLeavesTheMenuRefusing)
{
    const std::vector<std::string> closed = {"close bold", "close plain"};
    const std::vector<std::string> freed = {"release menu_scale", "release menu_mem", "close bold", "close plain"};
    const struct {
        const char* call;
        int n, last;
        size_t done; // lines of START that appear
        std::vector<std::string> released;
        const char* printed;
    } cases[] = {
        {"create", 1, 1, 2, {}, ""},
        {"TTF_OpenFontRW", 1, 1, 3, {}, "[MENU:F:L] Error! Load Font Error.\n"},
        {"TTF_OpenFontRW", 2, 3, 4, {"open font.ttf 32", "close plain"}, "[MENU:F:L] Error! Load Font Error.\n"},
        {"alloc", 1, 1, 5, closed, ""},
        {"alloc", 2, 2, 6, {"release menu_mem", "close bold", "close plain"}, ""},
        {"SDL_CreateRGBSurfaceWithFormatFrom", 1, 1, 7, freed, "Create RGB Surface failed!\n"},
    };
    for (const auto& c : cases) {
        calls().lines.clear();
        failCall(c.call, c.n, c.last);
        EXPECT_EQ(printed([&] { EXPECT_EQ(init(), -1); }), c.printed);
        std::vector<std::string> expected(START.begin(), START.begin() + static_cast<std::ptrdiff_t>(c.done));
        expected.insert(expected.end(), c.released.begin(), c.released.end());
        expected.emplace_back("log 3  failed\n");
        EXPECT_EQ(calls().lines, expected) << c.call;
        EXPECT_EQ(printed([&] { EXPECT_EQ(OSD_MENU_RenderCanvas(), -1); }), "[F:L] osd not init\n");
        EXPECT_EQ(text(gstMenuMgr.stCanvas.stMenuRect), "0 0 1000 1000");
    }
    EXPECT_TRUE(platform().pushes.empty());
}

TEST_F(StartTest, MissingBoldFontIsAnotherHandleOfTheRegular)
{
    calls().missingFiles = {"bold_font.ttf"};
    EXPECT_EQ(printed([&] { ASSERT_EQ(init(), 0); }), "");
    EXPECT_NE(gstMenuMgr.pstFont, gstMenuMgr.pstSelectFont);
    EXPECT_EQ(calls().fonts[gstMenuMgr.pstSelectFont].name, "plain");
}

TEST_F(StartTest, SenselessConfigurationDoesNoHarm)
{
    const struct {
        uint32_t format;
        float w;
    } cases[] = {{3, 0.5f}, {0xFFFFFFFF, 0.5f}, {2, NAN}, {2, 1e30f}, {2, -0.5f}};
    for (const auto& c : cases) {
        const int result = init({0, c.format, 0, {0.0f, 0.0f, c.w, 0.5f}, false}); // whatever SDL makes of it
        addItem(addPage(PAGE_LAYOUT_VERTICAL), "Gain", NAME, CONST_TXT);
        (void)printed([] { (void)OSD_MENU_RenderCanvas(); });
        EXPECT_EQ(gstMenuMgr.pstSurface != nullptr, result == 0) << c.format << " " << c.w;
        stop();
    }
}

TEST_F(StartTest, SecondStartReplacesEverything)
{
    start();
    addItem(addPage(PAGE_LAYOUT_VERTICAL), "Gain", NAME, CONST_TXT);
    start({1, 0, 0, {0.0f, 0.0f, 0.2f, 0.2f}, false}); // the fixture finds what the first left
    EXPECT_EQ(OSD_MENU_GetMenuStatus(), 0);
    EXPECT_EQ(platform().blocks.size(), 2u);
    EXPECT_EQ(calls().fonts.size(), 2u);
}

TEST_F(StartTest, Rectangles)
{
    const struct {
        SDL_Rect base;
        tagOSD_MENU_RECT_S fraction;
        const char* menu;
    } menus[] = {{{0, 0, 1920, 1080}, {0.0f, 0.0f, 0.333f, 0.5f}, "0 0 640 540"},
                 {{100, 50, 1920, 1080}, {0.05f, 0.05f, 0.35f, 0.7f}, "96 56 672 756"},
                 {{0, 0, 1000, 1000}, {0.004f, 0.005f, 1.0f, 0.001f}, "4 8 1000 4"}};
    for (auto c : menus) {
        SDL_Rect out = {};
        EXPECT_EQ(osdMenuCalcMenuRect(&c.base, &c.fraction, &out), 0);
        EXPECT_EQ(text(out), c.menu);
    }
    const struct {
        SDL_Rect menu;
        const char *popup, *withMessage;
    } popups[] = {{{192, 108, 1536, 864}, "768 432 384 216", "448 432 1024 216"},
                  {{10, 20, 103, 50}, "49 39 25 12", "27 39 68 12"}};
    for (auto c : popups) {
        SDL_Rect out = {};
        EXPECT_EQ(osdMenuCalcPopRect(&c.menu, &out), 0);
        EXPECT_EQ(text(out), c.popup);
        EXPECT_EQ(osdMenuCalcPopWithMsgRect(&c.menu, &out), 0);
        EXPECT_EQ(text(out), c.withMessage);
    }
}

TEST_F(StartTest, DestroySurface)
{
    tagOSD_MENU_CANVAS_S canvas = {};
    canvas.stMenuRect = {5, 6, 40, 20};
    SDL_Surface* surface = nullptr;
    EXPECT_EQ(OSD_COMM_DestroySurface(nullptr, surface), 0);
    EXPECT_EQ(OSD_COMM_DestroySurface(&canvas, surface), -1);
    surface = OSD_COMM_CreateSurface(&canvas);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(OSD_COMM_DestroySurface(nullptr, surface), -1);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(platform().blocks.size(), 2u);

    calls().lines.clear();
    EXPECT_EQ(printed([&] { EXPECT_EQ(OSD_COMM_DestroySurface(&canvas, surface), 0); }),
              "------------------[F:L]------------ \n");
    EXPECT_EQ(surface, nullptr);
    EXPECT_THAT(calls().lines, ElementsAre("free canvas", "release menu_scale", "release menu_mem"));
}
