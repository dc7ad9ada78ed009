// Start of the menu: libraries, rectangles, fonts, surface.
#pragma once

#include "osd_menu.h"

// Starts SDL and its companions; false with everything shut down again and a line printed.
bool osdLibrariesStart();

// Builds the manager; the work of OSD_MENU_InitSdkRes. False where that gives -1.
bool osdManagerStart(const tagOSD_MENU_CFG_S& stCfg, OSD_BUSINESS_FUNC pfnBusinessFunc,
                     OSD_DATA_ZONE_FUNC pfnGetDataZoneParent);

// Opens the two fonts and makes the surface over the canvas; false with nothing left open.
bool osdManagerOpen(tagOSD_MENU_MGR_S* pstMgr);

// The menu's rectangle from its fractions, each value rounded up to a multiple of 4; and the two popups in its middle.
SDL_Rect osdMenuRect(const SDL_Rect& stBase, const tagOSD_MENU_RECT_S& stFrac);
SDL_Rect osdPopRect(const SDL_Rect& stMenu);
SDL_Rect osdPopMsgRect(const SDL_Rect& stMenu);
