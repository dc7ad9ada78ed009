// The grid of an icon page. Left and right run through all cells in order, up and down stay in their column:
//
//     0  1  2  3      down from 5 gives 9, from 6 gives 2, as nothing stands below it
//     4  5  6  7      up from 1 gives 9, from 3 gives 7
//     8  9
//
// The same formulas move a selection that a host has set outside the grid, and that of a page without items.
#pragma once

#include "osd_menu.h"

// One move through the grid of an icon page.
void osdIconMove(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey);
