// Life of the canvas: redraw, push, dispatch on the layout, queries of the host.
#include "menu/core/page.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class CanvasTest : public MenuTest {};

TEST_F(CanvasTest, ClosedMenuIsHiddenWithItsPixelsAsTheyAre)
{
    start();
    EXPECT_EQ(OSD_MENU_RenderCanvas(), 0);
    EXPECT_THAT(calls().lines, ElementsAre("push 0"));
    EXPECT_EQ(platform().pushes[0].canvas, &gstMenuMgr);
    EXPECT_TRUE(platform().pushes[0].locked);
    EXPECT_THAT(platform().pushes[0].pixels, Each(0xA5));
}

TEST_F(CanvasTest, PageIsDrawnThenPushedUnderTheLock)
{
    start();
    addPage(PAGE_LAYOUT_VERTICAL);
    failCall("push"); // its result is not read
    EXPECT_EQ(OSD_MENU_RenderCanvas(), 0);
    EXPECT_THAT(calls().lines, ElementsAre("fill 0,0 1000x1000 800a0a0a", "push 1"));
    const Push& push = platform().pushes.at(0);
    EXPECT_TRUE(push.locked);
    ASSERT_EQ(push.pixels.size(), 4000000u);
    EXPECT_EQ(push.pixels.back(), 0x80);
    EXPECT_EQ(pixelAt(gstMenuMgr.pstSurface, 999, 999), 0x800A0A0Au);
}

TEST_F(CanvasTest, RectangleCountsFromTheCornerOfTheSurface)
{
    start({0, 2, 0, {0.05f, 0.05f, 0.35f, 0.7f}, false});
    addPage(PAGE_LAYOUT_VERTICAL);
    EXPECT_EQ(OSD_MENU_RenderCanvas(), 0);
    EXPECT_THAT(linesOf({"fill"}), ElementsAre("fill 96,56 672x756 800a0a0a"));
    EXPECT_EQ(pixelAt(gstMenuMgr.pstSurface, 95, 56), 0xA5A5A5A5u);
    EXPECT_EQ(pixelAt(gstMenuMgr.pstSurface, 96, 56), 0x800A0A0Au);
    EXPECT_EQ(pixelAt(gstMenuMgr.pstSurface, 671, 755), 0x800A0A0Au);
}

TEST_F(CanvasTest, UnknownLayoutPushesNothing)
{
    start();
    for (int layout : {-1, 6, 1000, INT32_MIN}) {
        addPage(static_cast<tagPAGE_LAYOUT_E>(layout));
        EXPECT_EQ(OSD_MENU_RenderCanvas(), -1);
        gstPageMgr.s32PageCnt = 0;
    }
    EXPECT_THAT(platform().pushes, IsEmpty());
}

TEST_F(CanvasTest, OpensTheRootPageOnce)
{
    start();
    platform().pages["main"] = "<P Layout='vertical_align'><I ItemIndex='Gain' Ctx='NAME' Attr='CONST_TXT'/></P>";
    EXPECT_EQ(OSD_MENU_GetMenuStatus(), 0);
    EXPECT_EQ(OSD_MENU_OpenMenu(), 0);
    EXPECT_EQ(OSD_MENU_GetMenuStatus(), 1);
    EXPECT_THAT(linesOf({"document", "push"}),
                ElementsAre("document " OSD_RESOURCE_DIR "/menu/main_page.xml 1", "push 1"));
    calls().lines.clear();
    EXPECT_EQ(OSD_MENU_OpenMenu(), 0);
    EXPECT_THAT(calls().lines, IsEmpty());
    EXPECT_EQ(gstPageMgr.s32PageCnt, 1);

    ASSERT_EQ(osdMenuReleaseSinglePage(), 0);
    platform().pages.clear();
    EXPECT_EQ(OSD_MENU_OpenMenu(), 0) << "opens also what can't be parsed";
    EXPECT_EQ(gstPageMgr.s32PageCnt, 1);
}

TEST_F(CanvasTest, ChannelCallbackShowsOnlyAnOpenMenu)
{
    start();
    int channel = 7;
    auto* attach = reinterpret_cast<OSD_ATTACH_INFO_S*>(&channel);
    EXPECT_EQ(platform().update(1, attach), 0);
    addPage(PAGE_LAYOUT_VERTICAL);
    EXPECT_EQ(platform().update(1, attach), 0);
    EXPECT_EQ(platform().update(0, attach), 0);
    EXPECT_THAT(calls().lines, ElementsAre("push one 0", "push one 1", "push one 0"));
    for (const Push& push : platform().pushes) {
        EXPECT_EQ(push.attach, attach);
        EXPECT_EQ(push.canvas, &gstMenuMgr.stCanvas);
        EXPECT_FALSE(push.locked);
    }
}

TEST_F(CanvasTest, SubPageQueries)
{
    EXPECT_EQ(OSD_Menu_HasSubPage(), 1) << "closed";
    EXPECT_EQ(OSD_MENU_HasSubPageWithOutIcon(), 0) << "closed";
    const struct {
        tagPAGE_LAYOUT_E layout;
        tagITEM_ATTR_E attr;
        OSD_BOOL active;
        OSD_BOOL any, withoutIcon;
    } cases[] = {{PAGE_LAYOUT_ICON, SUBPAGE, 0, 1, 0},     {PAGE_LAYOUT_ICON, COMMON, 0, 0, 0},
                 {PAGE_LAYOUT_VERTICAL, SUBPAGE, 1, 1, 1}, {PAGE_LAYOUT_VERTICAL, COMMON, 1, 0, 0},
                 {PAGE_LAYOUT_VERTICAL, SUBPAGE, 0, 0, 0}, {PAGE_LAYOUT_VERTICAL_KETH, SUBPAGE, 1, 1, 1}};
    for (const auto& c : cases) {
        addItem(addPage(c.layout), "Item", NAME, c.attr)->bActive = c.active;
        EXPECT_EQ(OSD_Menu_HasSubPage(), c.any) << c.layout << " " << c.attr;
        EXPECT_EQ(OSD_MENU_HasSubPageWithOutIcon(), c.withoutIcon) << c.layout << " " << c.attr;
        stop();
    }
}
