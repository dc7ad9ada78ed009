// What a direction means on each layout.
#pragma once

#include "osd_page.h"

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
