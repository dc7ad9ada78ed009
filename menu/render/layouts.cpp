// The renderer of each layout.
#include "menu/core/layout.h"

#include "osd_menu.h"

static const tagLAYOUT_S gs_astLayout[] = {
    {PAGE_LAYOUT_VERTICAL, &gstMenuMgr.stCanvas.stMenuRect, 0, OSD_MENU_RenderVerticalCanvas,
     OSD_MENU_RenderVerticalItem},
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
