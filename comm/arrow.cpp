#include "comm/arrow.h"

#include <algorithm>

#include "comm/arith.h"
#include "comm/image.h"
#include "comm/log.h"
#include "osd_comm.h"

// Fractions of the menu's width and height, unless said otherwise.
static constexpr float gs_f32ArrowSize = 0.03f;
static constexpr float gs_f32ArrowGap = 0.01f;
static constexpr float gs_f32TurnSize = 0.07f;
static constexpr float gs_f32TurnInset = 1.07f;    // of the arrow itself
static constexpr float gs_f32EnterStretch = 1.19f; // of the item's x
static constexpr float gs_f32EnterDrop = 0.37f;    // of the item's height
static constexpr float gs_f32ConfirmSize = 0.04f;
static constexpr double gs_f64ConfirmDrop = 0.01; // in double precision

// Draws a picture into the whole of pstPlace, whose w and h become what the clipping left.
static int osdPictureDraw(SDL_Surface* pstDst, const char* pcPicName, bool bBright, SDL_Rect* pstPlace)
{
    const OSD_SURFACE_PTR pstImg = osdImageGetLit(pcPicName, pstPlace->w, pstPlace->h, bBright);
    if (pstImg == nullptr) {
        return -1;
    }
    *pstPlace = osdImagePut(pstImg.get(), pstDst, pstPlace->x, pstPlace->y);
    return 0;
}

static int osdArrowDraw(SDL_Surface* pstDst, const char* pcPicName, bool bBright, SDL_Rect stPlace)
{
    if (osdPictureDraw(pstDst, pcPicName, bBright, &stPlace) != 0) {
        osdTrace("[%s:%d] Draw nav_arrow fail\n", OSD_PLACE);
        return -1;
    }
    return 0;
}

SDL_Rect osdArrowBeside(const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect)
{
    const float f32MenuW = osdF32(stMenuRect.w);
    const int s32W = osdTrunc(f32MenuW * gs_f32ArrowSize);
    const int s32H = osdTrunc(osdF32(stMenuRect.h) * gs_f32ArrowSize);
    const int s32Beside = osdClampS32(int64_t{stItemRect.x} - s32W);
    const int s32X = std::max(stMenuRect.x, osdTrunc(osdF32(s32Beside) - f32MenuW * gs_f32ArrowGap));
    const int s32Y = osdClampS32(stItemRect.y + (int64_t{stItemRect.h} - s32H) / 2);
    return {s32X, s32Y, s32W, s32H};
}

int OSD_COMM_DrawArrows(SDL_Surface* pstDst, SDL_Rect stMenuRect, SDL_Rect stItemRect)
{
    return osdArrowDraw(pstDst, "nav_arrow", true, osdArrowBeside(stMenuRect, stItemRect));
}

int OSD_COMM_DrawTurnArrows(SDL_Surface* pstDst, SDL_Rect stMenuRect, char* pcPicName)
{
    const float f32MenuW = osdF32(stMenuRect.w);
    const float f32MenuH = osdF32(stMenuRect.h);
    const int s32W = osdTrunc(f32MenuW * gs_f32TurnSize);
    const int s32H = osdTrunc(f32MenuH * gs_f32TurnSize);
    const int s32X = osdTrunc(f32MenuW - osdF32(s32W) * gs_f32TurnInset);
    const int s32Y = osdTrunc(f32MenuH - osdF32(s32H) * gs_f32TurnInset);
    return osdArrowDraw(pstDst, pcPicName, true, {s32X, s32Y, s32W, s32H});
}

int OSD_COMM_DrawSubPageEnter(SDL_Surface* pstDst, SDL_Rect stMenuRect, SDL_Rect stItemRect, OSD_BOOL bSelected)
{
    const int s32W = osdTrunc(osdF32(stMenuRect.w) * gs_f32ArrowSize);
    const int s32H = osdTrunc(osdF32(stMenuRect.h) * gs_f32ArrowSize);
    const int s32X = osdTrunc(osdF32(stItemRect.x) * gs_f32EnterStretch + osdF32(stItemRect.w));
    const int s32Y = osdTrunc(osdF32(stItemRect.h) * gs_f32EnterDrop + osdF32(stItemRect.y));
    return osdArrowDraw(pstDst, "nav_arrow", bSelected != 0, {s32X, s32Y, s32W, s32H});
}

int OSD_COMM_DrawConfirmImg(SDL_Surface* pstDst, SDL_Rect* pstPos, SDL_Rect stMenuRect, OSD_BOOL bSelected,
                            char* pcPicName)
{
    const double f64Drop = static_cast<double>(stMenuRect.h) * gs_f64ConfirmDrop;
    SDL_Rect stPlace = {pstPos->x, osdTruncF64(f64Drop + static_cast<double>(pstPos->y)),
                        osdTrunc(osdF32(stMenuRect.w) * gs_f32ConfirmSize),
                        osdTrunc(osdF32(stMenuRect.h) * gs_f32ConfirmSize)};
    if (osdPictureDraw(pstDst, pcPicName, bSelected != 0, &stPlace) != 0) {
        osdTrace("[%s:%d] Draw confirm fail\n", OSD_PLACE);
        return -1;
    }
    pstPos->x = osdClampS32(int64_t{pstPos->x} + stPlace.w);
    return 0;
}
