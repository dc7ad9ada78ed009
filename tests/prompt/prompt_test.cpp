// Prompts and the zoom ratio: places, pixels, failures.
#include "osd_prompt.h"

#include <cstdio>
#include <unistd.h>

#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;

namespace {

constexpr OSD_PROMPT_CFG_S LOOK = {50, 0, {0xFF, 0x11, 0x22, 0x33}, {0x88, 0x44, 0x55, 0x66}, 0.5, 0.5};

std::string at(const SDL_Rect& rect) { return format("%d,%d %dx%d", rect.x, rect.y, rect.w, rect.h); }

} // namespace

class PromptTest : public MenuTest {
protected:
    void TearDown() override
    {
        (void)printed([] { EXPECT_EQ(OSD_PROMPT_HideZoomRatio() + destroy(), 0); }); // no harm without a prompt
        gsOsdPromptItem = gsZoomRatioOsdItem = {};
        MenuTest::TearDown();
    }

    static int destroy()
    {
        calls().failing.clear();
        calls().missingFiles.clear();
        return OSD_PROMPT_Destroy();
    }

    char text[2] = "A"; // one character: as wide as the fake fonts are told
};

TEST_F(PromptTest, CanvasByTextAndPlace)
{
    const std::tuple<int, int, double, double, const char*, const char*, const char*> cases[] = {
        {401, 77, 0.5, 0.5, "1716,1040 404x80", "3,1 404x80", "3,1"},
        {400, 80, 0.0, 0.0, "0,0 400x80", "0,0 400x80", "0,0"},
        {402, 79, 1.0, 1.0, "3436,2080 404x80", "2,1 404x80", "2,1"},
        {401, 77, -0.001, -0.003, "0,-4 404x80", "-3,-2 404x80", "-3,-2"}}; // toward zero: the rest is negative
    for (const auto& [w, h, x, y, menu, ground, pen] : cases) {
        calls().byteWidth = w;
        calls().lineHeight = h;
        calls().lines.clear();
        ASSERT_EQ(OSD_PROMPT_Create({50, 0, LOOK.stTxtColor, LOOK.stBgColor, x, y}, text), 0);
        const tagOSD_MENU_CANVAS_S& canvas = gsOsdPromptItem.stCanvas;
        EXPECT_EQ(at(canvas.stBaseRect) + format(", %u, ", canvas.enPixFmt) + at(canvas.stMenuRect),
                  std::string("0,0 3840x2160, 1, ") + menu);
        EXPECT_EQ(canvas.f32W, static_cast<float>(w) / 3840.0f);
        EXPECT_EQ(canvas.f32H, static_cast<float>(h) / 2160.0f);
        const std::string blit = format("blit plain 100 ff112233 'A' at %s", pen);
        EXPECT_THAT(linesOf({"fill", "blit", "push", "open", "close"}),
                    testing::UnorderedElementsAre("open font.ttf 32", "close plain", format("fill %s 88445566", ground),
                                                  blit, "push 1"));
        (void)printed([] { EXPECT_EQ(destroy(), 0); });
    }
}

TEST_F(PromptTest, LivesFromCreateToDestroy)
{
    EXPECT_EQ(OSD_PROMPT_UpdateText(LOOK, text), -1);
    calls().byteWidth = 50;
    calls().lineHeight = 21;
    ASSERT_EQ(OSD_PROMPT_Create(LOOK, text), 0); // 50 by 21: at 1895,1069, on a canvas of 52 by 24
    EXPECT_THAT(linesOf({"push", "close", "free"}),
                ElementsAre("push 1", "close plain", "free plain 100 ff112233 'A'"));
    EXPECT_EQ(pixelAt(gsOsdPromptItem.pstSurface, 3, 1), 0xFF112233u);
    EXPECT_EQ(pixelAt(gsOsdPromptItem.pstSurface, 51, 23), 0x88445566u);
    const OSD_PROMPT_CFG_S look = {70, 0, {0xFF, 0xFF, 0xEE, 0xDD}, {0x44, 0x88, 0, 0}, 0.0, 0.0}; // the place stays
    for (const auto& [width, left] : {std::pair(20, 16), {70, -9}}) {
        calls().byteWidth = width;
        calls().lines.clear();
        ASSERT_EQ(OSD_PROMPT_UpdateText(look, text), 0);
        EXPECT_THAT(linesOf({"alloc", "fill", "blit", "push", "free", "close"}),
                    ElementsAre("fill all 44880000", format("blit plain 140 ffffeedd 'A' at %d,1", left), "push 1",
                                "free plain 140 ffffeedd 'A'", "close plain"));
    }
    EXPECT_EQ(at(gsOsdPromptItem.stCanvas.stMenuRect), "1892,1068 52x24");
    EXPECT_EQ(gsOsdPromptItem.stCfg.u32FontSize, 50u);
    calls().lines.clear();
    failCall("push");
    EXPECT_EQ(OSD_PROMPT_Show(0), -1) << "handed on";
    EXPECT_EQ(OSD_PROMPT_Show(1), 0);
    (void)printed([] { EXPECT_EQ(destroy(), 0); });
    EXPECT_THAT(calls().lines,
                ElementsAre("push 0", "push 1", "push 0", "free canvas", "release menu_scale", "release menu_mem"));
    EXPECT_EQ(OSD_PROMPT_UpdateText(LOOK, text), -1);
}

TEST_F(PromptTest, FailingCallLeavesNothing)
{
    for (const auto& [call, output, created, updated] : // what is printed, results of create and update
         {std::tuple("font.ttf", "[MENU:F:L] Error! Load Font Error.\n", -1, -1),
          {"TTF_RenderUTF8_Blended", "", -1, -1},
          {"TTF_SetFontSize", "", 0, 0},
          {"alloc", "", -1, 0},
          {"SDL_CreateRGBSurfaceWithFormatFrom", "Create RGB Surface failed!\n", -1, 0},
          {"push", "failed update all target\n", -1, 0}}) {
        const auto fails = [&, call = call](auto function, int result) {
            failCall(call);
            calls().missingFiles = {call};
            return printed([&] { EXPECT_EQ(function(LOOK, text), result) << call; });
        };
        EXPECT_THAT(fails(OSD_PROMPT_Create, created), testing::StartsWith(output));
        EXPECT_EQ(platform().blocks.size(), created == 0 ? 2u : 0u) << call;
        EXPECT_EQ(gsOsdPromptItem.pstSurface != nullptr, created == 0) << call;
        (void)printed([] { EXPECT_EQ(destroy(), 0); });
        ASSERT_EQ(OSD_PROMPT_Create(LOOK, text), 0);
        (void)fails(OSD_PROMPT_UpdateText, updated);
        (void)printed([] { EXPECT_EQ(destroy(), 0); });
        EXPECT_EQ(calls().fonts.size() + calls().surfaces.size(), 0u) << call;
    }
}

TEST_F(PromptTest, UpdateShowsForThreeSeconds)
{
    EXPECT_EQ(OSD_PROMPT_Update({50, 2, {}, {}, 0.0, 0.0}, text), 0);
    (void)printed([&] { EXPECT_EQ(OSD_PROMPT_Update(LOOK, text), 0); });
    failCall("alloc");
    EXPECT_EQ(OSD_PROMPT_Update(LOOK, text), 0);
    EXPECT_THAT(linesOf({"push", "sleep"}), ElementsAre("push 1", "sleep 3", "push 0", "sleep 3", "push 0"));
}

TEST_F(PromptTest, ZoomRatio)
{
    EXPECT_EQ(OSD_PROMPT_HideZoomRatio(), 0);
    failCall("alloc");
    EXPECT_EQ(OSD_PROMPT_ShowZoomRatio(1.0f), -1);
    EXPECT_EQ(OSD_PROMPT_IsZoomRatioActive(), 0u);
    calls().lines.clear();
    for (const float ratio : {2.5f, 12.0f}) { // 120 by 30 on a canvas of 120 by 32
        EXPECT_EQ(OSD_PROMPT_ShowZoomRatio(ratio), 0);
    }
    EXPECT_EQ(at(gsZoomRatioOsdItem.stCanvas.stMenuRect), "1860,1064 120x32");
    const OSD_PROMPT_COLOR_S& ground = gsZoomRatioOsdItem.stCfg.stBgColor; // its canvas keeps four bits of each
    EXPECT_EQ(format("%d %d,%d,%d", ground.u8Alpha, ground.u8Red, ground.u8Green, ground.u8Blue), "128 0,0,0");
    EXPECT_THAT(linesOf({"blit", "push"}),
                ElementsAre("blit plain 328 white '888.8X' at 0,1", "push 1", "blit plain 328 white '2.5X' at 20,1",
                            "push 1", "blit plain 328 white '12.0X' at 10,1", "push 1"));
    const char* marker = "/tmp/.mpp_reloading";
    FILE* file = fopen(marker, "wx"); // only when it doesn't exist
    if (file == nullptr) {
        GTEST_SKIP() << marker << " exists";
    }
    (void)fclose(file);
    calls().lines.clear();
    EXPECT_EQ(OSD_PROMPT_ShowZoomRatio(3.5f), 0); // frozen
    EXPECT_EQ(OSD_PROMPT_IsZoomRatioActive(), 1u);
    (void)printed([] { EXPECT_EQ(OSD_PROMPT_HideZoomRatio(), 0); });
    EXPECT_EQ(OSD_PROMPT_ShowZoomRatio(3.5f), 0);
    EXPECT_EQ(OSD_PROMPT_IsZoomRatioActive(), 0u);
    EXPECT_THAT(linesOf({"push", "open"}), ElementsAre("push 0"));
    EXPECT_EQ(remove(marker), 0);
}
