// The list of layout "vertical_tolvane_align".
#pragma once

#include "osd_records.h"

void osdTolvanePage(tagPAGE_NODE_S* pstPage);

// One row with its sub-items; the work of OSD_MENU_RenderVerticalTolvaneItem.
bool osdTolvaneRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);

// The key hints at the foot of the menu that fit the item; false at the first that can't be had.
bool osdTolvaneHints(const tagITEM_NODE_S* pstItem);
