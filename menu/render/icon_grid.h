// One cell of the icon grid.
#pragma once

#include "osd_records.h"

// Draws the cell at the item's stRect. Returns 0, or -1 where the font's size, the picture
// or the caption can't be had.
extern "C" OSD_API int OSD_MENU_RenderIconText(tagITEM_NODE_S* pstItemNode, OSD_BOOL bSelected);
