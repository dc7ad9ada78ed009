#include "comm/arrow.h"

#include <algorithm>

#include "comm/arith.h"
#include "comm/image.h"
#include "comm/log.h"
#include "comm/picture_names.h"
#include "osd_comm.h"

// Fractions of the menu's width and height, unless said otherwise.
static constexpr float c_f32ArrowSize = 0.03f;
static constexpr float c_f32ArrowGap = 0.01f;
static constexpr float c_f32TurnSize = 0.07f;
static constexpr float c_f32TurnInset = 1.07f;    // of the arrow itself
static constexpr float c_f32EnterStretch = 1.19f; // of the item's x
static constexpr float c_f32EnterDrop = 0.37f;    // of the item's height
static constexpr float c_f32ConfirmSize = 0.04f;
static constexpr double c_f64ConfirmDrop = 0.01; // in double precision

// Draws a picture into the whole of pstPlace, whose w and h become what the clipping left.
static bool osdPictureDraw(SDL_Surface* pstDst, const char* pcPicName, bool bBright, SDL_Rect* pstPlace)
{
    const OSD_SURFACE_PTR pstImg = osdImageGetLit(pcPicName, pstPlace->w, pstPlace->h, bBright);
    if (pstImg == nullptr) {
        return false;
    }
    *pstPlace = osdImagePutClipped(pstImg.get(), pstDst, pstPlace->x, pstPlace->y);
    return true;
}

static bool osdArrowDraw(SDL_Surface* pstDst, const char* pcPicName, bool bBright, SDL_Rect stPlace, const char* pcFunc)
{
    if (!osdPictureDraw(pstDst, pcPicName, bBright, &stPlace)) {
        osdTrace("[%s:%d] Draw nav_arrow fail\n", pcFunc, __LINE__);
        return false;
    }
    return true;
}

SDL_Rect osdArrowBeside(const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect)
{
    const float f32MenuW = osdF32(stMenuRect.w);
    const int s32W = osdTrunc(f32MenuW * c_f32ArrowSize);
    const int s32H = osdTrunc(osdF32(stMenuRect.h) * c_f32ArrowSize);
    const int s32Beside = osdClampS32(int64_t{stItemRect.x} - s32W);
    const int s32X = std::max(stMenuRect.x, osdTrunc(osdF32(s32Beside) - f32MenuW * c_f32ArrowGap));
    const int s32Y = osdClampS32(stItemRect.y + (int64_t{stItemRect.h} - s32H) / 2);
    return {s32X, s32Y, s32W, s32H};
}

bool osdArrowMark(SDL_Surface* pstDst, const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect)
{
    return osdArrowDraw(pstDst, OSD_PIC_NAV_ARROW, true, osdArrowBeside(stMenuRect, stItemRect),
                        OSD_NAME(OSD_COMM_DrawArrows));
}

bool osdArrowTurn(SDL_Surface* pstDst, const SDL_Rect& stMenuRect, const char* pcPicName)
{
    const float f32MenuW = osdF32(stMenuRect.w);
    const float f32MenuH = osdF32(stMenuRect.h);
    const int s32W = osdTrunc(f32MenuW * c_f32TurnSize);
    const int s32H = osdTrunc(f32MenuH * c_f32TurnSize);
    const int s32X = osdTrunc(f32MenuW - osdF32(s32W) * c_f32TurnInset);
    const int s32Y = osdTrunc(f32MenuH - osdF32(s32H) * c_f32TurnInset);
    return osdArrowDraw(pstDst, pcPicName, true, {s32X, s32Y, s32W, s32H}, OSD_NAME(OSD_COMM_DrawTurnArrows));
}

bool osdArrowEnter(SDL_Surface* pstDst, const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect, bool bBright)
{
    const int s32W = osdTrunc(osdF32(stMenuRect.w) * c_f32ArrowSize);
    const int s32H = osdTrunc(osdF32(stMenuRect.h) * c_f32ArrowSize);
    const int s32X = osdTrunc(osdF32(stItemRect.x) * c_f32EnterStretch + osdF32(stItemRect.w));
    const int s32Y = osdTrunc(osdF32(stItemRect.h) * c_f32EnterDrop + osdF32(stItemRect.y));
    return osdArrowDraw(pstDst, OSD_PIC_NAV_ARROW, bBright, {s32X, s32Y, s32W, s32H},
                        OSD_NAME(OSD_COMM_DrawSubPageEnter));
}

bool osdArrowButton(SDL_Surface* pstDst, SDL_Rect* pstPos, const SDL_Rect& stMenuRect, bool bBright,
                    const char* pcPicName)
{
    const double f64Drop = static_cast<double>(stMenuRect.h) * c_f64ConfirmDrop;
    SDL_Rect stPlace = {pstPos->x, osdTruncF64(f64Drop + static_cast<double>(pstPos->y)),
                        osdTrunc(osdF32(stMenuRect.w) * c_f32ConfirmSize),
                        osdTrunc(osdF32(stMenuRect.h) * c_f32ConfirmSize)};
    if (!osdPictureDraw(pstDst, pcPicName, bBright, &stPlace)) {
        osdTrace("[%s:%d] Draw confirm fail\n", OSD_PLACE(OSD_COMM_DrawConfirmImg));
        return false;
    }
    pstPos->x = osdClampS32(int64_t{pstPos->x} + stPlace.w);
    return true;
}
