// Changed values: when they count as changed, when they are committed, and when the host's function gets them.
#pragma once

#include "menu/core/page.h"
#include "osd_menu.h"

// Commit: the value shown becomes the value committed. Roll back: the reverse.
void osdItemCommit(tagITEM_NODE_S* pstItem);
void osdItemRollBack(tagITEM_NODE_S* pstItem);

// Whether the item's change waits for the home key.
inline bool osdItemWaits(const tagITEM_NODE_S* pstItem)
{
    return pstItem->enAttr == KEY_WITH_MSG || pstItem->enAttr == MSG_WITH_SUBITEM;
}

// Hands an item to the host's function, which may close pages and build them anew: the item must not be touched behind
// this call.
void osdItemApply(tagITEM_NODE_S* pstItem);

// The same for an item of the marked page; false when it is gone. A page that only lies above the item's counts as
// well, as then nothing is lost but a refresh.
bool osdItemSurvives(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem);

extern "C" {
// 1 when the item has a pending change.
OSD_API OSD_BOOL osdMenuParamChange(tagITEM_NODE_S* pstItemNode);

// After a cursor key: osdMenuInvokeBusinessFuncIfNeed for the active item of a flattened list. Returns 0, or -1 when
// there is none.
OSD_API int osdMenuUpdateParam(list_head* pstList, OSD_BOOL bUpdate);

// Commits a pending change where the top page allows it, and hands it on when bUpdate isn't 0. Returns 0.
OSD_API int osdMenuInvokeBusinessFuncIfNeed(tagITEM_NODE_S* pstItemNode, OSD_BOOL bUpdate);

// Hands the item on, changed or not, unless its value waits for the home key. Returns 0.
OSD_API int osdMenuInvokeBusinessFunc(tagITEM_NODE_S* pstItemNode);

// Keeps the colour text of the page "tally" up to date: asks the device, or with bUpdate 0, as the device doesn't know
// the change yet, computes it from the selected item. Returns 0.
OSD_API int osdMenuUpdateStatusWithCustomColor(tagPAGE_NODE_S* pstPage, list_head* pstList, OSD_BOOL bUpdate);

// 1 when the item is a DNS mode and right behind a committed static address mode in the most recent flattened list.
// Both must be items of an open page.
OSD_API OSD_BOOL osdXmlIsStaticOfNetMode(tagITEM_NODE_S* pstItemNode);
}
