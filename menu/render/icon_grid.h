// The grid of layout "icon".
#pragma once

#include "osd_records.h"

void osdIconPage(tagPAGE_NODE_S* pstPage);

// The cell at the item's stRect; false where the font's size, the picture or the caption can't be had.
bool osdIconCellDraw(const tagITEM_NODE_S* pstItem, OSD_BOOL bSelected);
