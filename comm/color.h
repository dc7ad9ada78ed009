// Colours that texts and shapes share.
#pragma once

#include <SDL.h>

inline constexpr SDL_Color OSD_COLOR_SELECTED = {255, 255, 255, 255};
inline constexpr SDL_Color OSD_COLOR_PLAIN = {191, 191, 191, 255};
inline constexpr SDL_Color OSD_COLOR_AMBER = {255, 205, 37, 255};
