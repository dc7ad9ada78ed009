// Colours that texts and shapes share.
#pragma once

#include <SDL.h>

#include "osd_types.h"

inline constexpr SDL_Color OSD_COLOR_SELECTED = {255, 255, 255, 255};
inline constexpr SDL_Color OSD_COLOR_PLAIN = {191, 191, 191, 255};
inline constexpr SDL_Color OSD_COLOR_AMBER = {255, 205, 37, 255};

// Exactly 1 is bright.
inline SDL_Color osdColorLit(OSD_BOOL bBright) { return bBright == 1 ? OSD_COLOR_SELECTED : OSD_COLOR_PLAIN; }

// A colour given as 0xAARRGGBB.
inline SDL_Color osdColorArgb(unsigned u32Color)
{
    return {static_cast<Uint8>(u32Color >> 16), static_cast<Uint8>(u32Color >> 8), static_cast<Uint8>(u32Color),
            static_cast<Uint8>(u32Color >> 24)};
}
