// What a direction means on each layout.
#pragma once

#include "osd_menu.h"

// The cursor's parts that several layouts share.

// The active item of a flattened list, or null with a line in the log.
tagITEM_NODE_S* osdCursorActive(list_head* pstList);

// Hands the cursor from one item to another; both may be the same.
void osdCursorMove(tagITEM_NODE_S* pstFrom, tagITEM_NODE_S* pstTo);

// One step of the item's value, left or right; beyond one end of its range it takes the other.
void osdValueStep(tagITEM_NODE_S* pstItem, tagOSD_MENU_KEY_E enKey);

// After a step: the top page's message line shows while a value waits for the home key.
void osdMessageUpdate(tagITEM_NODE_S* pstItem);

// After the item has lost the cursor: a value that waited is rolled back, and its message line goes.
void osdWaitingDrop(tagITEM_NODE_S* pstItem);

// One move through the grid of an icon page.
void osdIconMove(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey);

extern "C" {
// Applies one direction to the page; doesn't draw. bUpdate 0 keeps a changed value from the host's function.
// Returns 0.
OSD_API int osdMenuUpdateItemCursor(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey, OSD_BOOL bUpdate);

// The cursors on a flattened list. Return 0, or -1 when no item is active; the paged one 1 when it turned the page, and
// the list describes the top page no more.
OSD_API int osdMenuUpdateVerticalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey);
OSD_API int osdMenuUpdateHorizontalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey);
OSD_API int osdMenuUpdateVerticalItemCursorWithKETH(list_head* pstList, tagOSD_MENU_KEY_E enKey);
}
