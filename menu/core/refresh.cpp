// Reading the top page's values again, on the host's request.
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/value_bind.h"
#include "osd_page.h"

int OSD_MENU_RefreshCurrentPage()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr) {
        return -1;
    }
    char acName[OSD_TEXT_LEN];
    osdTextSetField(acName, pstPage->acPageName); // the parse clears the record
    osdPageDropItems(pstPage);
    (void)osdPageParse(acName, pstPage); // a page that can't be parsed shows what it has
    (void)OSD_MENU_RenderCanvas();
    return 0;
}

static void osdItemRefresh(tagITEM_NODE_S* pstItem)
{
    (void)osdMenuGetItemValue(pstItem); // always 0
    if (osdMenuHasSubItem(pstItem) == 1) {
        (void)osdMenuUpdateSubItems(pstItem); // 0, as there are sub-items
    }
}

int OSD_MENU_RefreshItem(char* pcItemIndex)
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr) {
        return 0;
    }
    bool bFound = false;
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        if (osdTextEqual(pstItem->acItemIndex, pcItemIndex)) {
            osdItemRefresh(pstItem);
            bFound = true;
        }
    }
    if (bFound) {
        (void)OSD_MENU_RenderCanvas();
    }
    return 0;
}

int OSD_MENU_RefreshPage()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr) {
        return 0;
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        osdItemRefresh(pstItem);
        if (pstItem->enAttr == CONFIRM_POP_BTN) {
            break;
        }
    }
    return 0;
}
