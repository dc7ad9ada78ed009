// Surfaces over media memory.
#pragma once

#include <SDL.h>

#include "osd_canvas.h"

// Takes both blocks of the canvas and wraps the first in a surface; null with nothing taken.
SDL_Surface* osdSurfaceCreate(tagOSD_MENU_CANVAS_S* pstCanvas);

// The reverse; the surface and its canvas must be there.
void osdSurfaceDestroy(tagOSD_MENU_CANVAS_S* pstCanvas, SDL_Surface*& pstSurface);

// Shows (1) or hides (0) a canvas on all channels; what the media service gives, which reports its own failures.
int osdSurfacePush(tagOSD_MENU_CANVAS_S* pstCanvas, OSD_BOOL bShow);
