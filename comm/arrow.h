// Small pictures beside an item, drawn straight onto a surface.
#pragma once

#include <SDL.h>

// Where the arrow that marks an item stands: to the left of stItemRect, but not left of stMenuRect.
SDL_Rect osdArrowBeside(const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect);
