#include "comm/shape.h"

#include "comm/arith.h"
#include "comm/color.h"

static constexpr SDL_Color c_stBgColor = {10, 10, 10, 128};

Uint32 osdShapePixel(const SDL_Surface* pstDst, SDL_Color stColor)
{
    return SDL_MapRGBA(pstDst->format, stColor.r, stColor.g, stColor.b, stColor.a);
}

bool osdShapeFill(SDL_Surface* pstDst, const SDL_Rect& stRect, Uint32 u32Pixel)
{
    const SDL_Rect stPlace = osdRectInRange(stRect);
    return SDL_FillRect(pstDst, &stPlace, u32Pixel) == 0;
}

bool osdShapeBackground(SDL_Surface* pstDst, const SDL_Rect& stRect)
{
    return osdShapeFill(pstDst, stRect, osdShapePixel(pstDst, c_stBgColor));
}

bool osdShapeLine(SDL_Surface* pstDst, const SDL_Rect& stRect)
{
    return osdShapeFill(pstDst, stRect, osdShapePixel(pstDst, OSD_COLOR_SELECTED));
}

bool osdShapeFrame(SDL_Surface* pstDst, const SDL_Rect& stRect, int s32LineWidth, SDL_Color stColor)
{
    const int s32Bottom = osdClampS32(int64_t{stRect.y} + stRect.h - s32LineWidth);
    const int s32Right = osdClampS32(int64_t{stRect.x} + stRect.w - s32LineWidth);
    const SDL_Rect astSide[] = {{stRect.x, stRect.y, stRect.w, s32LineWidth},
                                {stRect.x, s32Bottom, stRect.w, s32LineWidth},
                                {stRect.x, stRect.y, s32LineWidth, stRect.h},
                                {s32Right, stRect.y, s32LineWidth, stRect.h}};
    const Uint32 u32Pixel = osdShapePixel(pstDst, stColor);
    for (const SDL_Rect& stSide : astSide) {
        if (!osdShapeFill(pstDst, stSide, u32Pixel)) {
            return false;
        }
    }
    return true;
}
