// The cursor of a page in a paged sequence: it passes over status lines, turns the page at the ends of the list, and
// the right key enters a sub-page.
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/nav/cursor.h"
#include "menu/nav/stack.h"

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
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr || pstPage->stTurn.bCurPagesNum == 0) {
        return false;
    }
    if (bForwards && pstPage->stTurn.bNextPage != 0) {
        (void)osdMenuNextPage(pstPage->stTurn.acNextPage); // reports its own failures
        return true;
    }
    if (!bForwards && pstPage->stTurn.bPrevPage != 0) {
        (void)osdMenuPrevPage(); // a page is open
        return true;
    }
    return false;
}

static int osdPagedMove(list_head* pstList, tagITEM_NODE_S* pstItem, bool bForwards)
{
    const list_head& stLink = pstItem->stTmpNode;
    list_head* pstTo = osdPagedSkip(pstList, bForwards ? stLink.next : stLink.prev, bForwards);
    if (pstTo == pstList) {
        if (osdPagedTurn(bForwards)) {
            return 1;
        }
        pstTo = osdPagedSkip(pstList, bForwards ? pstList->next : pstList->prev, bForwards);
    }
    // in a list of status lines alone the cursor stays where it is
    osdCursorMove(pstItem, pstTo == pstList ? pstItem : osdFlatItem(pstTo));
    osdWaitingDrop(pstItem);
    return 0;
}

int osdMenuUpdateVerticalItemCursorWithKETH(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem == nullptr) {
        return -1;
    }
    if (enKey == OSD_MENU_KEY_UP || enKey == OSD_MENU_KEY_DOWN) {
        return osdPagedMove(pstList, pstItem, enKey == OSD_MENU_KEY_DOWN);
    }
    if (enKey != OSD_MENU_KEY_LEFT && enKey != OSD_MENU_KEY_RIGHT) {
        return 0;
    }
    osdValueStep(pstItem, enKey);
    if (enKey == OSD_MENU_KEY_RIGHT && pstItem->enAttr == SUBPAGE) {
        (void)osdMenuNextPage(pstItem->acSubPage); // reports its own failures
        return 1;
    }
    osdMessageUpdate(pstItem);
    return 0;
}
