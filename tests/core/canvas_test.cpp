// Life of the canvas: redraw, push, dispatch on the layout, queries of the host.
#include "osd_page.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using namespace testing;

class CanvasTest : public MenuTest {};

TEST_F(CanvasTest, RedrawPushesUnderTheLock)
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

TEST_F(CanvasTest, ChannelCallbackShowsOnlyAnOpenMenu)
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

TEST_F(CanvasTest, Queries)
{
    EXPECT_EQ(OSD_MENU_GetMenuStatus(), 0);
    const auto answers = [] { return std::pair<int, int>(OSD_Menu_HasSubPage(), OSD_MENU_HasSubPageWithOutIcon()); };
    EXPECT_THAT(answers(), Pair(1, 0)) << "closed";
    tagITEM_NODE_S* item = itemAt(openPage("<I ItemIndex='More' Attr='SUBPAGE' SubPage='s'/>")->stItemList, 0);
    EXPECT_EQ(OSD_MENU_GetMenuStatus(), 1);
    item->bActive = 0;
    EXPECT_THAT(answers(), Pair(0, 0)) << "nothing selected";
    item->bActive = 1;
    EXPECT_THAT(answers(), Pair(1, 1));
    gstPageMgr.astPage[0].enLayout = PAGE_LAYOUT_ICON;
    EXPECT_THAT(answers(), Pair(1, 0));
    item->enAttr = COMMON;
    EXPECT_THAT(answers(), Pair(0, 0));
}
