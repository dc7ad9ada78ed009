#include "menu/render/row.h"

#include "comm/arith.h"
#include "comm/text.h"
#include "menu/core/layout.h"
#include "menu/core/page.h"
#include "osd_menu.h"

tagITEM_NODE_S osdRowOfText(const char (&acText)[OSD_TEXT_LEN], tagITEM_LEVEL_E enLevel, tagITEM_ATTR_E enAttr)
{
    tagITEM_NODE_S stRow = {};
    stRow.enCtx = NAME;
    stRow.enLevel = enLevel;
    stRow.enAttr = enAttr;
    osdTextSetField(stRow.acItemName, acText);
    return stRow;
}

int OSD_MENU_FillData2Canvas(SDL_Surface* pstSrc, SDL_Rect stDst)
{
    SDL_Rect stPlace = osdRectInRange(stDst);
    (void)SDL_UpperBlit(pstSrc, nullptr, gstMenuMgr.pstSurface, &stPlace); // a missing source is no failure
    return 0;
}

int OSD_MENU_HandleKeyMsg(SDL_Rect /*stLayoutCursor*/)
{
    const tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr || pstPage->bKeyMsg != 1) {
        return 0;
    }
    const tagLAYOUT_S* pstLayout = osdLayoutFind(pstPage->enLayout);
    if (pstLayout == nullptr || pstLayout->pfnDrawMsg == nullptr) {
        return 0;
    }
    tagITEM_NODE_S stRow = osdRowOfText(pstPage->acKeyMsg, ITEM_LEVEL_UNDER_TITLE, MSG_LINE);
    SDL_Rect stCursor = {}; // its place doesn't depend on the rows above
    (void)pstLayout->pfnDrawMsg(&stRow, &stCursor, 1);
    return 0;
}
