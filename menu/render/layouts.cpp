// The renderer of each layout.
#include "menu/core/layout.h"
#include "menu/render/icon_grid.h"
#include "menu/render/paged_list.h"
#include "menu/render/popup.h"
#include "menu/render/tolvane_list.h"
#include "menu/render/vertical_list.h"
#include "osd_menu.h"

static constexpr int c_s32PopFrame = 5; // pixels

static const tagLAYOUT_S c_astLayout[] = {
    {PAGE_LAYOUT_ICON, 0, &gstMenuMgr.stCanvas.stMenuRect, osdIconPage, nullptr},
    {PAGE_LAYOUT_VERTICAL, 0, &gstMenuMgr.stCanvas.stMenuRect, osdVerticalPage, osdVerticalRow},
    {PAGE_LAYOUT_HORIZONTAL, c_s32PopFrame, &gstMenuMgr.stPopRect, osdPopupPage, nullptr},
    {PAGE_LAYOUT_VERTICAL_TOLVANE, 0, &gstMenuMgr.stCanvas.stMenuRect, osdTolvanePage, osdTolvaneRow},
    {PAGE_LAYOUT_VERTICAL_KETH, 0, &gstMenuMgr.stCanvas.stMenuRect, osdPagedPage, osdPagedRow},
    {PAGE_LAYOUT_HORIZONTAL_KETH, c_s32PopFrame, &gstMenuMgr.stPopMsgRect, osdPopupMsgPage, nullptr},
};

const tagLAYOUT_S* osdLayoutFind(tagPAGE_LAYOUT_E enLayout)
{
    for (const tagLAYOUT_S& stLayout : c_astLayout) {
        if (stLayout.enLayout == enLayout) {
            return &stLayout;
        }
    }
    return nullptr;
}
