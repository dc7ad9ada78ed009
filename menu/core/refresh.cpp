#include "menu/core/refresh.h"

#include "comm/text.h"
#include "menu/core/canvas.h"
#include "menu/core/item.h"
#include "menu/core/item_walk.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/value_bind.h"

bool osdRefreshPageFile()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr) {
        return false;
    }
    OSD_TEXT acName;
    osdTextSetField(acName, pstPage->acPageName); // the parse clears the record
    osdPageDropItems(pstPage);
    osdPageParse(acName, pstPage); // a page that can't be parsed shows what it has
    osdCanvasRender();
    return true;
}

static void osdRefreshItem(tagITEM_NODE_S* pstItem)
{
    osdValueRead(pstItem);
    if (osdItemHasSubItems(pstItem)) {
        osdValueReadSubItems(pstItem);
    }
}

void osdRefreshKey(const char* pcItemIndex)
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr) {
        return;
    }
    bool bFound = false;
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        if (osdTextEqual(pstItem->acItemIndex, pcItemIndex)) {
            osdRefreshItem(pstItem);
            bFound = true;
        }
    }
    if (bFound) {
        osdCanvasRender();
    }
}

void osdRefreshPage()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr) {
        return;
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        osdRefreshItem(pstItem);
        if (pstItem->enAttr == CONFIRM_POP_BTN) {
            return;
        }
    }
}
