// The list of layout "vertical_align".
#pragma once

#include "osd_records.h"

void osdVerticalPage(tagPAGE_NODE_S* pstPage);

// One row with its sub-items; the work of OSD_MENU_RenderVerticalItem.
bool osdVerticalRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);
