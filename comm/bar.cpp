// Widgets that come as a surface: value bars, and a text between arrows.
#include <SDL_ttf.h>

#include <utility>

#include "comm/arith.h"
#include "comm/guard.h"
#include "comm/image.h"
#include "comm/log.h"
#include "osd_comm.h"

static constexpr float gs_f32BarWidth = 0.7f;       // of the widget's width
static constexpr float gs_f32BarTxtX = 0.75f;       // of the widget's width
static constexpr int gs_s32BlockPart = 20;          // the block is this part of the bar's width
static constexpr float gs_f32ArrowWidth = 0.09f;    // of the widget's width
static constexpr float gs_f32ArrowHeight = 0.42f;   // of the widget's height, and its distance from the top
static constexpr float gs_f32ArrowTxtX = 0.11f;     // of the widget's width
static constexpr float gs_f32ArrowRightGap = 0.13f; // of the widget's width, before the text's width

struct tagSLIDER_S {
    OSD_SURFACE_PTR pstBar; // the block is released first
    OSD_SURFACE_PTR pstBlock;
};

static OSD_SURFACE_PTR osdWidgetNew(const SDL_Rect& stRect)
{
    return OSD_SURFACE_PTR(SDL_CreateRGBSurfaceWithFormat(0, stRect.w, stRect.h, 16, SDL_PIXELFORMAT_ARGB4444));
}

static OSD_SURFACE_PTR osdWidgetText(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected)
{
    SDL_Surface* pstTxt = nullptr;
    (void)OSD_COMM_GetTxtSurface(pstFont, pcText, s32FontSize, bSelected, &pstTxt); // null on failure
    return OSD_SURFACE_PTR(pstTxt);
}

// Left edge of the block: at the left end for position 0, its right edge at the bar's right end for the last position.
static int osdBlockLeft(int s32BarW, int s32Index, int s32Count)
{
    const int64_t s64Steps = int64_t{s32Count} - 1;
    const int64_t s64Way = int64_t{s32BarW} - s32BarW / gs_s32BlockPart;
    return s64Steps == 0 ? 0 : osdClampS32(s64Way * s32Index / s64Steps);
}

static int osdSliderDraw(SDL_Surface* pstOn, const SDL_Rect& stRect, int s32Index, int s32Count, tagSLIDER_S* pstSlider)
{
    const int s32BarW = osdTrunc(osdF32(stRect.w) * gs_f32BarWidth);
    pstSlider->pstBar = osdImageGet("bar", s32BarW, stRect.h / 2);
    if (pstSlider->pstBar == nullptr) {
        return -1;
    }
    (void)osdImagePut(pstSlider->pstBar.get(), pstOn, 0, stRect.h / 4);
    pstSlider->pstBlock = osdImageGet("block", s32BarW / gs_s32BlockPart, stRect.h);
    if (pstSlider->pstBlock == nullptr) {
        return -1;
    }
    (void)osdImagePut(pstSlider->pstBlock.get(), pstOn, osdBlockLeft(s32BarW, s32Index, s32Count), 0);
    return 0;
}

int OSD_COMM_GetBarTxtSurface(TTF_Font* pstFont, char* pcText, int s32Index, int s32Count, int s32FontSize,
                              OSD_BOOL bSelected, SDL_Rect stRect, SDL_Surface** ppstBar)
{
    OSD_SURFACE_PTR pstWidget = osdWidgetNew(stRect);
    tagSLIDER_S stSlider;
    if (pstWidget == nullptr || osdSliderDraw(pstWidget.get(), stRect, s32Index, s32Count, &stSlider) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    const OSD_SURFACE_PTR pstTxt = osdWidgetText(pstFont, pcText, s32FontSize, bSelected);
    if (pstTxt == nullptr) {
        OSD_TRACE_FAILED();
        return -1;
    }
    (void)osdImagePut(pstTxt.get(), pstWidget.get(), osdTrunc(osdF32(stRect.w) * gs_f32BarTxtX), 0);
    return osdHandOver(std::move(pstWidget), ppstBar);
}

int OSD_COMM_GetBarTxtSurfaceWithKETH(TTF_Font* pstFont, char* pcText, int s32Index, int s32Count, int s32FontSize,
                                      OSD_BOOL bSelected, SDL_Rect stRect, SDL_Surface** ppstBar)
{
    OSD_SURFACE_PTR pstWidget = osdWidgetNew(stRect);
    tagSLIDER_S stSlider;
    OSD_SURFACE_PTR pstLayer = pstWidget != nullptr ? osdWidgetNew(stRect) : nullptr; // dimmed as a whole
    if (pstLayer == nullptr || osdSliderDraw(pstLayer.get(), stRect, s32Index, s32Count, &stSlider) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    if (bSelected == 0) {
        (void)SDL_SetSurfaceAlphaMod(pstLayer.get(), OSD_DIM_ALPHA);
    }
    (void)osdImagePut(pstLayer.get(), pstWidget.get(), 0, 0);
    const OSD_SURFACE_PTR pstTxt = osdWidgetText(pstFont, pcText, s32FontSize, bSelected);
    if (pstTxt == nullptr) {
        OSD_TRACE_FAILED();
        return -1;
    }
    (void)osdImagePut(pstTxt.get(), pstWidget.get(), osdTrunc(osdF32(stRect.w) * gs_f32BarTxtX), 0);
    return osdHandOver(std::move(pstWidget), ppstBar);
}

int OSD_COMM_GetTxtSurfaceAroundArrows(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                       SDL_Rect stRect, SDL_Surface** ppstTxt)
{
    const float f32W = osdF32(stRect.w);
    const int s32ArrowW = osdTrunc(f32W * gs_f32ArrowWidth);
    const int s32ArrowH = osdTrunc(osdF32(stRect.h) * gs_f32ArrowHeight);
    int s32TxtW = 0;
    (void)TTF_SizeUTF8(pstFont, pcText, &s32TxtW, nullptr); // before the text is made: at the caller's size

    OSD_SURFACE_PTR pstWidget = osdWidgetNew(stRect);
    if (pstWidget == nullptr) {
        OSD_TRACE_FAILED();
        return -1;
    }
    const OSD_SURFACE_PTR pstLeft = osdImageGetLit("arrow_left", s32ArrowW, s32ArrowH, bSelected != 0);
    if (pstLeft == nullptr) {
        osdTrace("[%s:%d] Draw nav_arrow fail\n", OSD_PLACE);
        return -1;
    }
    (void)osdImagePut(pstLeft.get(), pstWidget.get(), 0, s32ArrowH);
    const OSD_SURFACE_PTR pstTxt = osdWidgetText(pstFont, pcText, s32FontSize, bSelected);
    if (pstTxt == nullptr) {
        OSD_TRACE_FAILED();
        return -1;
    }
    (void)osdImagePut(pstTxt.get(), pstWidget.get(), osdTrunc(f32W * gs_f32ArrowTxtX), 0);
    const OSD_SURFACE_PTR pstRight = osdImageGetLit("arrow_right", s32ArrowW, s32ArrowH, bSelected != 0);
    if (pstRight == nullptr) {
        osdTrace("[%s:%d] Draw nav_arrow fail\n", OSD_PLACE);
        return -1;
    }
    const int s32RightX = osdTrunc(f32W * gs_f32ArrowRightGap + osdF32(s32TxtW));
    (void)osdImagePut(pstRight.get(), pstWidget.get(), s32RightX, s32ArrowH);
    return osdHandOver(std::move(pstWidget), ppstTxt);
}
