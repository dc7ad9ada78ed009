#include "menu/nav/list_cursor.h"

#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/nav/value_step.h"
#include "menu/nav/waiting.h"

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

tagMOVE_E osdCursorVertical(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem == nullptr) {
        return MOVE_NO_CURSOR;
    }
    if (enKey == OSD_MENU_KEY_UP || enKey == OSD_MENU_KEY_DOWN) {
        osdCursorMove(pstItem, osdCursorNext(pstList, pstItem, enKey == OSD_MENU_KEY_DOWN));
        osdWaitingDrop(pstItem);
    } else if (enKey == OSD_MENU_KEY_LEFT || enKey == OSD_MENU_KEY_RIGHT) {
        osdValueStep(pstItem, enKey == OSD_MENU_KEY_RIGHT);
        osdWaitingShow(pstItem);
    }
    return MOVE_DONE;
}

tagMOVE_E osdCursorHorizontal(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem == nullptr) {
        return MOVE_NO_CURSOR;
    }
    if (enKey == OSD_MENU_KEY_LEFT || enKey == OSD_MENU_KEY_RIGHT) {
        osdCursorMove(pstItem, osdCursorNext(pstList, pstItem, enKey == OSD_MENU_KEY_RIGHT));
    }
    return MOVE_DONE;
}
