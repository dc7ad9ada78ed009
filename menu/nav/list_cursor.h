// The cursor on a flattened list, and what the paged list shares of it.
#pragma once

#include "osd_menu.h"

// What became of a move. The numbers are those of the interface.
enum tagMOVE_E : int32_t {
    MOVE_NO_CURSOR = -1, // no item was active
    MOVE_DONE = 0,
    MOVE_TURNED = 1, // the page was turned, and the list describes the top page no more
};

tagMOVE_E osdCursorVertical(list_head* pstList, tagOSD_MENU_KEY_E enKey);
tagMOVE_E osdCursorHorizontal(list_head* pstList, tagOSD_MENU_KEY_E enKey);

// The active item of a flattened list, or null with a line in the log.
tagITEM_NODE_S* osdCursorActive(list_head* pstList);

// Hands the cursor from one item to another; both may be the same.
void osdCursorMove(tagITEM_NODE_S* pstFrom, tagITEM_NODE_S* pstTo);
