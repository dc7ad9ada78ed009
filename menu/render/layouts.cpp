// The renderer of each layout.
#include "menu/core/layout.h"

#include "osd_page.h"

static constexpr int gs_s32PopFrame = 5; // pixels

static const tagLAYOUT_S gs_astLayout[] = {
    {PAGE_LAYOUT_ICON, 0, &gstMenuMgr.stCanvas.stMenuRect, OSD_MENU_RenderIconCanvas, nullptr},
    {PAGE_LAYOUT_VERTICAL, 0, &gstMenuMgr.stCanvas.stMenuRect, OSD_MENU_RenderVerticalCanvas,
     OSD_MENU_RenderVerticalItem},
    {PAGE_LAYOUT_HORIZONTAL, gs_s32PopFrame, &gstMenuMgr.stPopRect, OSD_MENU_RenderHorizontalCanvas, nullptr},
    {PAGE_LAYOUT_VERTICAL_TOLVANE, 0, &gstMenuMgr.stCanvas.stMenuRect, OSD_MENU_RenderVerticalSpecialCanvas,
     OSD_MENU_RenderVerticalTolvaneItem},
    {PAGE_LAYOUT_VERTICAL_KETH, 0, &gstMenuMgr.stCanvas.stMenuRect, OSD_MENU_RenderVerticalCanvasWithKETH,
     OSD_MENU_RenderVerticalKETHItem},
    {PAGE_LAYOUT_HORIZONTAL_KETH, gs_s32PopFrame, &gstMenuMgr.stPopMsgRect, OSD_MENU_RenderHorizontalCanvasWithKETH,
     nullptr},
};

const tagLAYOUT_S* osdLayoutFind(tagPAGE_LAYOUT_E enLayout)
{
    for (const tagLAYOUT_S& stLayout : gs_astLayout) {
        if (stLayout.enLayout == enLayout) {
            return &stLayout;
        }
    }
    return nullptr;
}
