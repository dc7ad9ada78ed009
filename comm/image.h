// Bitmaps inside the toolkit: with owners instead of out-arguments.
#pragma once

#include "comm/guard.h"
#include "osd_types.h"

inline constexpr Uint8 OSD_DIM_ALPHA = 191; // pictures of what is not selected

// The bitmap of a stem, stretched to s32W by s32H in ARGB4444; null with a line in the log.
OSD_SURFACE_PTR osdImageGet(const char* pcPicName, int s32W, int s32H);

// The same, dimmed unless bBright.
OSD_SURFACE_PTR osdImageGetLit(const char* pcPicName, int s32W, int s32H, bool bBright);

// Blits the whole of a surface with its corner at x, y; the blit's own outcome is not looked at. Returns what the blit
// left of the place: position and size behind the clipping.
SDL_Rect osdImagePut(SDL_Surface* pstSrc, SDL_Surface* pstDst, int s32X, int s32Y);
