// Widgets that come as a surface: value bars, and a text between arrows. Null on failure, with a line in the log.
#pragma once

#include <SDL_ttf.h>

#include "comm/guard.h"
#include "osd_types.h"

// The text of a widget; bBright is exactly 1 for white text, and 0 dims the pictures that go with it.
struct tagWIDGET_TEXT_S {
    TTF_Font* pstFont;
    const char* pcText;
    int s32Size;
    OSD_BOOL bBright;
};

// Where the block of a bar stands: position s32Index of s32Count.
struct tagBAR_STATE_S {
    int s32Index;
    int s32Count;
};

// The bar of OSD_COMM_GetBarTxtSurface, that of its sister WithKETH, and the text of OSD_COMM_GetTxtSurfaceAroundArrows.
OSD_SURFACE_PTR osdBarSurface(const tagWIDGET_TEXT_S& stText, const tagBAR_STATE_S& stState, const SDL_Rect& stRect);
OSD_SURFACE_PTR osdBarSurfaceDimmed(const tagWIDGET_TEXT_S& stText, const tagBAR_STATE_S& stState,
                                    const SDL_Rect& stRect);
OSD_SURFACE_PTR osdArrowedSurface(const tagWIDGET_TEXT_S& stText, const SDL_Rect& stRect);
