// The grid of layout "icon".
#pragma once

#include "osd_records.h"

void osdIconPage(tagPAGE_NODE_S* pstPage);

// The first cell of a grid of so many in a row; one of no size, or less, where the gaps leave no room.
SDL_Rect osdIconFirst(const SDL_Rect& stMenu, int32_t s32PerLine);

// The cell at the item's stRect; false where the font's size, the picture or the caption can't be had.
bool osdIconCellDraw(const tagITEM_NODE_S* pstItem, OSD_BOOL bSelected);
