// The list of layout "vertical_align_keth", and the parts of its rows.
#pragma once

#include "comm/guard.h"
#include "osd_records.h"

void osdPagedPage(tagPAGE_NODE_S* pstPage);

// One row with its sub-items; the work of OSD_MENU_RenderVerticalKETHItem.
bool osdPagedRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);

// The title and the rule under it; the cursor of the draw stands on the rule afterwards, and stays on failure.
bool osdPagedTitle(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor);

// The label of a row in a size, with its separator line and its arrow: its place and its surface, null on failure. A
// separator takes the cursor of the draw with it, on failure too.
OSD_SURFACE_PTR osdPagedName(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, int s32Size, OSD_BOOL bBright,
                             SDL_Rect* pstNameRect);

// The label at a place, a button's behind its picture; null on failure.
OSD_SURFACE_PTR osdPagedText(const tagITEM_NODE_S* pstItem, SDL_Rect stRect, int s32Size, OSD_BOOL bBright);

// The arrows that tell which way the page turns, or none.
void osdPagedTurnArrow(const tagPAGE_TURN_S& stTurn);
