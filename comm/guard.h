// Owners of the handles of SDL and SDL_ttf.
#pragma once

#include <SDL.h>
#include <SDL_ttf.h>

#include <memory>

// Closes a font that may be one of several, each used by its own thread.
void osdFontClose(TTF_Font* pstFont);

template <auto pfnFree>
struct OSD_FREE_WITH {
    template <typename T>
    void operator()(T* pstHandle) const
    {
        (void)pfnFree(pstHandle);
    }
};

using OSD_SURFACE_PTR = std::unique_ptr<SDL_Surface, OSD_FREE_WITH<&SDL_FreeSurface>>;
using OSD_FONT_PTR = std::unique_ptr<TTF_Font, OSD_FREE_WITH<&osdFontClose>>;

// Gives a surface to the caller's out-argument; without one the argument stays as it was and the result is -1.
inline int osdHandOver(OSD_SURFACE_PTR pstSurface, SDL_Surface** ppstOut)
{
    if (pstSurface == nullptr) {
        return -1;
    }
    *ppstOut = pstSurface.release();
    return 0;
}
