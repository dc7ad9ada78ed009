#include "menu/render/list.h"

#include "menu/core/item_walk.h"
#include "menu/core/layout.h"
#include "menu/core/network.h"

static void osdListTitle(const tagPAGE_NODE_S* pstPage, const tagLIST_S& stList, SDL_Rect* pstLayoutCursor)
{
    if (stList.pfnTitle != nullptr) {
        stList.pfnTitle(pstPage, pstLayoutCursor);
        return;
    }
    tagITEM_NODE_S stTitle = osdRowOfText(pstPage->acTitle, ITEM_LEVEL_TOP, TITLE_LINE);
    stList.pfnRow(&stTitle, pstLayoutCursor, 0);
}

void osdListDraw(tagPAGE_NODE_S* pstPage, const tagLIST_S& stList)
{
    SDL_Rect stCursor = {};
    if (pstPage->bTitle == 1) {
        osdListTitle(pstPage, stList, &stCursor);
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        stList.pfnRow(pstItem, &stCursor, pstItem->bActive);
        if (stList.bDhcpEnds && osdNetworkEndsPage(pstItem)) {
            return;
        }
    }
}

void osdListMessage()
{
    const tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr || pstPage->bKeyMsg != 1) {
        return;
    }
    const tagLAYOUT_S* pstLayout = osdLayoutFind(pstPage->enLayout);
    if (pstLayout != nullptr && pstLayout->pfnDrawMsg != nullptr) {
        tagITEM_NODE_S stRow = osdRowOfText(pstPage->acKeyMsg, ITEM_LEVEL_UNDER_TITLE, MSG_LINE);
        SDL_Rect stCursor = {}; // its place doesn't depend on the rows above
        pstLayout->pfnDrawMsg(&stRow, &stCursor, 1);
    }
}
