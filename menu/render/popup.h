// One text of a popup.
#pragma once

#include "osd_records.h"

extern "C" {
// Draw one item and move pstLayoutCursor to its line; sub-items aren't drawn. Return 0, or -1 with the cursor
// unchanged.
OSD_API int OSD_MENU_RenderHorizontalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);
OSD_API int OSD_MENU_RenderHorizontalItemWithKETH(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor,
                                                  OSD_BOOL bSelected);
}
