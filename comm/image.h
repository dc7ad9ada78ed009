// Bitmaps as surfaces, and what is put onto others.
#pragma once

#include "comm/guard.h"

// A picture file of any format; null when it can't be read.
OSD_SURFACE_PTR osdImageLoad(const char* pcPath);

// The bitmap of a stem, stretched to s32W by s32H in ARGB4444; null with a line in the log.
OSD_SURFACE_PTR osdImageGet(const char* pcPicName, int s32W, int s32H);

// The same, dimmed unless bBright.
OSD_SURFACE_PTR osdImageGetLit(const char* pcPicName, int s32W, int s32H, bool bBright);

// Dims what is drawn from a surface.
void osdImageDim(SDL_Surface* pstImg);

// Blits the whole of a surface with its corner at x, y; the blit's own outcome is not looked at.
void osdImagePut(SDL_Surface* pstSrc, SDL_Surface* pstDst, int s32X, int s32Y);

// The same; gives what the blit left of the place: position and size behind the clipping.
SDL_Rect osdImagePutClipped(SDL_Surface* pstSrc, SDL_Surface* pstDst, int s32X, int s32Y);
