// Parts of a row in the paged list.
#pragma once

#include "osd_records.h"

extern "C" {
// Draws the arrows that tell which way the page turns, or none. Returns 0.
OSD_API int osdMenuDrawTurnArrow(tagPAGE_TURN_S* pstTurn);

// Draws the title and the rule under it; pstLayoutCursor stands on the rule afterwards. bSelected isn't read. Returns
// 0, or -1 with the cursor unchanged.
OSD_API int OSD_MENU_RenderTitleKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);

// Places and draws the label of a row, with its separator line and its arrow. Gives the place and the surface, which is
// the caller's. A separator takes pstLayoutCursor with it, on failure too. Returns 0, or -1 without a surface.
OSD_API int OSD_MENU_DrawItemName(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, int s32FontSize,
                                  OSD_BOOL bBright, SDL_Rect* pstNameRect, SDL_Surface** ppstSurface);

// Draws the label at stRect, a button's behind its picture. The surface is the caller's. Returns 0, or -1 without one.
OSD_API int OSD_MENU_RenderTxt(tagITEM_NODE_S* pstItemNode, SDL_Rect stRect, int s32FontSize, SDL_Surface** ppstSurface,
                               OSD_BOOL bBright);
}
