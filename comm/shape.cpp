// Filled rectangles: background, frame, line.
#include <SDL.h>

#include "comm/arith.h"
#include "osd_comm.h"

static constexpr SDL_Color gs_stBgColor = {10, 10, 10, 128};
static constexpr SDL_Color gs_stLineColor = {255, 255, 255, 255};

static Uint32 osdShapePixel(const SDL_Surface* pstDst, SDL_Color stColor)
{
    return SDL_MapRGBA(pstDst->format, stColor.r, stColor.g, stColor.b, stColor.a);
}

static int osdShapeFill(SDL_Surface* pstDst, const SDL_Rect& stRect, Uint32 u32Pixel)
{
    const SDL_Rect stPlace = osdRectInRange(stRect);
    return SDL_FillRect(pstDst, &stPlace, u32Pixel) == 0 ? 0 : -1;
}

int OSD_COMM_DrawMenuBg(SDL_Surface* pstSurface, SDL_Rect stRect)
{
    return osdShapeFill(pstSurface, stRect, osdShapePixel(pstSurface, gs_stBgColor));
}

int OSD_COMM_DrawRect(SDL_Surface* pstDst, SDL_Rect stRect, int s32LineWidth, unsigned int u32Color)
{
    const int s32Bottom = osdClampS32(int64_t{stRect.y} + stRect.h - s32LineWidth);
    const int s32Right = osdClampS32(int64_t{stRect.x} + stRect.w - s32LineWidth);
    const SDL_Rect astSide[] = {{stRect.x, stRect.y, stRect.w, s32LineWidth},
                                {stRect.x, s32Bottom, stRect.w, s32LineWidth},
                                {stRect.x, stRect.y, s32LineWidth, stRect.h},
                                {s32Right, stRect.y, s32LineWidth, stRect.h}};
    const Uint32 u32Pixel =
        osdShapePixel(pstDst, {static_cast<Uint8>(u32Color >> 16), static_cast<Uint8>(u32Color >> 8),
                               static_cast<Uint8>(u32Color), static_cast<Uint8>(u32Color >> 24)});
    for (const SDL_Rect& stSide : astSide) {
        if (osdShapeFill(pstDst, stSide, u32Pixel) != 0) {
            return -1;
        }
    }
    return 0;
}

int OSD_COMM_DrawLine(SDL_Surface* pstDst, SDL_Rect stRect)
{
    return osdShapeFill(pstDst, stRect, osdShapePixel(pstDst, gs_stLineColor));
}
