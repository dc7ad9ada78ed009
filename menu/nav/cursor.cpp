#include "menu/nav/cursor.h"

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/core/words.h"
#include "menu/nav/address.h"
#include "menu/nav/change.h"

struct tagCURSOR_S {
    tagPAGE_LAYOUT_E enLayout;
    bool bEdits;   // an address may take the key
    bool bApplies; // a changed value is committed and handed on
    int (*pfnMove)(list_head*, tagOSD_MENU_KEY_E);
};

// An icon page has no cursor in its items.
static constexpr tagCURSOR_S gs_astCursor[] = {
    {PAGE_LAYOUT_VERTICAL, true, true, osdMenuUpdateVerticalItemCursor},
    {PAGE_LAYOUT_HORIZONTAL, false, false, osdMenuUpdateHorizontalItemCursor},
    {PAGE_LAYOUT_VERTICAL_TOLVANE, true, true, osdMenuUpdateVerticalItemCursor},
    {PAGE_LAYOUT_VERTICAL_KETH, true, true, osdMenuUpdateVerticalItemCursorWithKETH},
    {PAGE_LAYOUT_HORIZONTAL_KETH, false, false, osdMenuUpdateHorizontalItemCursor}};

static const tagCURSOR_S* osdCursorFind(tagPAGE_LAYOUT_E enLayout)
{
    for (const tagCURSOR_S& stCursor : gs_astCursor) {
        if (stCursor.enLayout == enLayout) {
            return &stCursor;
        }
    }
    return nullptr;
}

// Commits and hands on what the key changed. The host's function may redraw, which threads the list anew, or close the
// page.
static void osdCursorApply(tagPAGE_NODE_S* pstPage, list_head* pstList, OSD_BOOL bUpdate)
{
    const tagPAGE_MARK_S stMark = osdPageMark(pstPage);
    (void)osdMenuUpdateParam(pstList, bUpdate); // a missing cursor is in the log twice
    if (pstPage->enLayout == PAGE_LAYOUT_VERTICAL_KETH && osdPageHolds(stMark)) {
        osdPageFlatten(pstPage, pstList);
        (void)osdMenuUpdateStatusWithCustomColor(pstPage, pstList, bUpdate); // always 0
    }
}

int osdMenuUpdateItemCursor(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey, OSD_BOOL bUpdate)
{
    if (pstPage->enLayout == PAGE_LAYOUT_ICON) {
        osdIconMove(pstPage, enKey);
        return 0;
    }
    const tagCURSOR_S* pstCursor = osdCursorFind(pstPage->enLayout);
    if (pstCursor == nullptr) {
        return 0;
    }
    if (pstCursor->bEdits && osdMenuIsItemEditing() == 1) {
        (void)osdMenuEditableItemKeyEvent(enKey); // 0, as there is an item
        return 0;
    }
    list_head stFlatList;
    osdPageFlatten(pstPage, &stFlatList);
    const bool bTurned = pstCursor->pfnMove(&stFlatList, enKey) == 1;
    if (pstCursor->bApplies && !bTurned) {
        osdCursorApply(pstPage, &stFlatList, bUpdate);
    }
    return 0;
}

tagITEM_NODE_S* osdCursorActive(list_head* pstList)
{
    tagITEM_NODE_S* pstItem = osdFlatActive(pstList);
    if (pstItem == nullptr) {
        osdTrace("No active item found, weird\n");
    }
    return pstItem;
}

void osdCursorMove(tagITEM_NODE_S* pstFrom, tagITEM_NODE_S* pstTo)
{
    pstFrom->bActive = 0;
    pstTo->bActive = 1;
}

// The neighbour in the list, from one end to the other.
static tagITEM_NODE_S* osdCursorNext(list_head* pstList, tagITEM_NODE_S* pstItem, bool bForwards)
{
    list_head* pstLink = bForwards ? pstItem->stTmpNode.next : pstItem->stTmpNode.prev;
    if (pstLink == pstList) {
        pstLink = bForwards ? pstList->next : pstList->prev;
    }
    return osdFlatItem(pstLink);
}

int osdMenuUpdateVerticalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem == nullptr) {
        return -1;
    }
    if (enKey == OSD_MENU_KEY_UP || enKey == OSD_MENU_KEY_DOWN) {
        osdCursorMove(pstItem, osdCursorNext(pstList, pstItem, enKey == OSD_MENU_KEY_DOWN));
        osdWaitingDrop(pstItem);
    } else if (enKey == OSD_MENU_KEY_LEFT || enKey == OSD_MENU_KEY_RIGHT) {
        osdValueStep(pstItem, enKey);
        osdMessageUpdate(pstItem);
    }
    return 0;
}

int osdMenuUpdateHorizontalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem == nullptr) {
        return -1;
    }
    if (enKey == OSD_MENU_KEY_LEFT || enKey == OSD_MENU_KEY_RIGHT) {
        osdCursorMove(pstItem, osdCursorNext(pstList, pstItem, enKey == OSD_MENU_KEY_RIGHT));
    }
    return 0;
}

void osdMessageUpdate(tagITEM_NODE_S* pstItem)
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr || !osdItemWaits(pstItem)) {
        return;
    }
    if (osdMenuParamChange(pstItem) != 1) {
        pstPage->bKeyMsg = 0;
        return;
    }
    pstPage->bKeyMsg = 1;
    osdTextSetField(pstPage->acKeyMsg, pstItem->acMsg);
    // the message of the DNS mode says that the address mode holds it
    if (osdTextEqual(pstItem->acItemIndex, OSD_KEY_DNS_MODE) && osdXmlIsStaticOfNetMode(pstItem) == 0) {
        pstPage->bKeyMsg = 0;
    }
}

void osdWaitingDrop(tagITEM_NODE_S* pstItem)
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (!osdItemWaits(pstItem) || osdMenuParamChange(pstItem) != 1) {
        return;
    }
    osdItemRollBack(pstItem);
    if (pstPage != nullptr) {
        pstPage->bKeyMsg = 0;
    }
}
