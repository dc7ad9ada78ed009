#include "menu/nav/paged_cursor.h"

#include "menu/core/item_walk.h"
#include "menu/core/page.h"
#include "menu/nav/stack.h"
#include "menu/nav/value_step.h"
#include "menu/nav/waiting.h"

// The first link from here on that is no status line; the head when there is none.
static list_head* osdPagedSkip(list_head* pstList, list_head* pstLink, bool bForwards)
{
    while (pstLink != pstList && osdFlatItem(pstLink)->enAttr == STATUS) {
        pstLink = bForwards ? pstLink->next : pstLink->prev;
    }
    return pstLink;
}

// Turns the page where the top page says that there is one. A turn forwards drops nothing: the page waits below.
static bool osdPagedTurn(bool bForwards)
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr || pstPage->stTurn.bCurPagesNum == 0) {
        return false;
    }
    if (bForwards && pstPage->stTurn.bNextPage != 0) {
        osdStackNext(pstPage->stTurn.acNextPage); // reports its own failures
        return true;
    }
    if (!bForwards && pstPage->stTurn.bPrevPage != 0) {
        osdPagePop();
        return true;
    }
    return false;
}

static tagMOVE_E osdPagedMove(list_head* pstList, tagITEM_NODE_S* pstItem, bool bForwards)
{
    const list_head& stLink = pstItem->stTmpNode;
    list_head* pstTo = osdPagedSkip(pstList, bForwards ? stLink.next : stLink.prev, bForwards);
    if (pstTo == pstList) {
        if (osdPagedTurn(bForwards)) {
            return MOVE_TURNED;
        }
        pstTo = osdPagedSkip(pstList, bForwards ? pstList->next : pstList->prev, bForwards);
    }
    // in a list of status lines alone the cursor stays where it is
    osdCursorMove(pstItem, pstTo == pstList ? pstItem : osdFlatItem(pstTo));
    osdWaitingDrop(pstItem);
    return MOVE_DONE;
}

static tagMOVE_E osdPagedStep(tagITEM_NODE_S* pstItem, bool bForwards)
{
    osdValueStep(pstItem, bForwards);
    if (bForwards && pstItem->enAttr == SUBPAGE) {
        osdStackNext(pstItem->acSubPage); // reports its own failures
        return MOVE_TURNED;
    }
    osdWaitingShow(pstItem);
    return MOVE_DONE;
}

tagMOVE_E osdCursorPaged(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem == nullptr) {
        return MOVE_NO_CURSOR;
    }
    switch (enKey) {
    case OSD_MENU_KEY_UP:
    case OSD_MENU_KEY_DOWN:
        return osdPagedMove(pstList, pstItem, enKey == OSD_MENU_KEY_DOWN);
    case OSD_MENU_KEY_LEFT:
    case OSD_MENU_KEY_RIGHT:
        return osdPagedStep(pstItem, enKey == OSD_MENU_KEY_RIGHT);
    }
    return MOVE_DONE;
}
