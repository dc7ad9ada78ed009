// Start of the menu: rectangles, fonts, surface.
#pragma once

#include "osd_menu.h"

extern "C" {
// The menu's rectangle from its fractions, each value rounded up to a multiple of 4; the base's own place is not
// added. Returns 0.
OSD_API int osdMenuCalcMenuRect(SDL_Rect* pstBase, tagOSD_MENU_RECT_S* pstFrac, SDL_Rect* pstOut);

// The popup in the middle of the menu: a quarter of its width and height. Returns 0.
OSD_API int osdMenuCalcPopRect(SDL_Rect* pstMenu, SDL_Rect* pstOut);

// The popup with message: two thirds of the menu's width, a quarter of its height. Returns 0.
OSD_API int osdMenuCalcPopWithMsgRect(SDL_Rect* pstMenu, SDL_Rect* pstOut);

// Opens the two fonts and makes the surface over the canvas. Returns 0, or -1 with nothing left open.
OSD_API int osdMenuCreatSurface(tagOSD_MENU_MGR_S* pstMgr);
}
