// Owners of SDL's handles.
#pragma once

#include <SDL.h>

#include <memory>

template <auto pfnFree>
struct OSD_FREE_WITH {
    template <typename T>
    void operator()(T* pstHandle) const
    {
        pfnFree(pstHandle);
    }
};

using OSD_SURFACE_PTR = std::unique_ptr<SDL_Surface, OSD_FREE_WITH<&SDL_FreeSurface>>;

// Gives a surface to the caller's out-argument; without one the argument stays as it was and the result is -1.
inline int osdHandOver(OSD_SURFACE_PTR pstSurface, SDL_Surface** ppstOut)
{
    if (pstSurface == nullptr) {
        return -1;
    }
    *ppstOut = pstSurface.release();
    return 0;
}
