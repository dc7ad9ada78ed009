// Parts of the Tolvane list.
#pragma once

#include "osd_records.h"

// Draws the key hints at the foot of the menu that fit the item. Returns 0, or -1 at the first that can't be had.
extern "C" OSD_API int OSD_MENU_RenderBelowIcon(tagITEM_NODE_S* pstItemNode);
