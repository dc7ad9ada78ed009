// Surfaces over media memory.
#pragma once

#include <SDL.h>

#include "osd_canvas.h"

// Frees the surface, sets the caller's pointer to null and gives both blocks of the canvas back. Returns 0, or -1 when
// the surface is null; with a null canvas 0 for a null surface, else -1, and nothing is freed.
extern "C" OSD_API int OSD_COMM_DestroySurface(tagOSD_MENU_CANVAS_S* pstCanvas, SDL_Surface*& pstSurface);
