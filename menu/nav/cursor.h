// What a direction means on each layout.
#pragma once

#include "osd_menu.h"

// Applies one direction to the page; doesn't draw. Without bUpdate a changed value is kept from the host's function.
void osdCursorKey(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey, bool bUpdate);

// After a key: commits and hands on the change of the list's active item; false when there is none.
bool osdCursorApply(list_head* pstList, bool bUpdate);
