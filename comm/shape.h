// Filled rectangles. A fill that fails leaves the picture without it and gives false.
#pragma once

#include <SDL.h>

// The pixel of a colour in the format of a surface.
Uint32 osdShapePixel(const SDL_Surface* pstDst, SDL_Color stColor);

// Fills a rectangle with a pixel; replaces what is there, doesn't blend.
bool osdShapeFill(SDL_Surface* pstDst, const SDL_Rect& stRect, Uint32 u32Pixel);

// The menu's background, and an opaque white line as thick as the rectangle is high.
bool osdShapeBackground(SDL_Surface* pstDst, const SDL_Rect& stRect);
bool osdShapeLine(SDL_Surface* pstDst, const SDL_Rect& stRect);

// A frame inside the rectangle.
bool osdShapeFrame(SDL_Surface* pstDst, const SDL_Rect& stRect, int s32LineWidth, SDL_Color stColor);
