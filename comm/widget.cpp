#include "comm/widget.h"

#include "comm/arith.h"
#include "comm/image.h"
#include "comm/log.h"
#include "comm/picture_names.h"
#include "comm/text_surface.h"

static constexpr float c_f32BarWidth = 0.7f;       // of the widget's width
static constexpr float c_f32BarTxtX = 0.75f;       // of the widget's width
static constexpr int c_s32BlockPart = 20;          // the block is this part of the bar's width
static constexpr float c_f32ArrowWidth = 0.09f;    // of the widget's width
static constexpr float c_f32ArrowHeight = 0.42f;   // of the widget's height, and its distance from the top
static constexpr float c_f32ArrowTxtX = 0.11f;     // of the widget's width
static constexpr float c_f32ArrowRightGap = 0.13f; // of the widget's width, before the text's width

struct tagSLIDER_S {
    OSD_SURFACE_PTR pstBar; // the block is released first
    OSD_SURFACE_PTR pstBlock;
};

static OSD_SURFACE_PTR osdWidgetNew(const SDL_Rect& stRect)
{
    return OSD_SURFACE_PTR(SDL_CreateRGBSurfaceWithFormat(0, stRect.w, stRect.h, 16, SDL_PIXELFORMAT_ARGB4444));
}

// Left edge of the block: at the left end for position 0, its right edge at the bar's right end for the last position.
static int osdBlockLeft(int s32BarW, int s32Index, int s32Count)
{
    const int64_t s64Steps = int64_t{s32Count} - 1;
    const int64_t s64Way = int64_t{s32BarW} - s32BarW / c_s32BlockPart;
    return s64Steps == 0 ? 0 : osdClampS32(s64Way * s32Index / s64Steps);
}

static bool osdSliderDraw(SDL_Surface* pstOn, const SDL_Rect& stRect, const tagBAR_STATE_S& stState,
                          tagSLIDER_S* pstSlider)
{
    const int s32BarW = osdTrunc(osdF32(stRect.w) * c_f32BarWidth);
    pstSlider->pstBar = osdImageGet(OSD_PIC_BAR, s32BarW, stRect.h / 2);
    if (pstSlider->pstBar == nullptr) {
        return false;
    }
    osdImagePut(pstSlider->pstBar.get(), pstOn, 0, stRect.h / 4);
    pstSlider->pstBlock = osdImageGet(OSD_PIC_BLOCK, s32BarW / c_s32BlockPart, stRect.h);
    if (pstSlider->pstBlock == nullptr) {
        return false;
    }
    osdImagePut(pstSlider->pstBlock.get(), pstOn, osdBlockLeft(s32BarW, stState.s32Index, stState.s32Count), 0);
    return true;
}

// The text of a bar, beside the slider; false without one.
static bool osdBarText(const tagWIDGET_TEXT_S& stText, SDL_Surface* pstWidget, const SDL_Rect& stRect)
{
    const OSD_SURFACE_PTR pstTxt = osdTextLit(stText.pstFont, stText.pcText, stText.s32Size, stText.bBright);
    if (pstTxt == nullptr) {
        return false;
    }
    osdImagePut(pstTxt.get(), pstWidget, osdTrunc(osdF32(stRect.w) * c_f32BarTxtX), 0);
    return true;
}

OSD_SURFACE_PTR osdBarSurface(const tagWIDGET_TEXT_S& stText, const tagBAR_STATE_S& stState, const SDL_Rect& stRect)
{
    OSD_SURFACE_PTR pstWidget = osdWidgetNew(stRect);
    tagSLIDER_S stSlider;
    if (pstWidget == nullptr || !osdSliderDraw(pstWidget.get(), stRect, stState, &stSlider) ||
        !osdBarText(stText, pstWidget.get(), stRect)) {
        OSD_TRACE_FAILED(OSD_COMM_GetBarTxtSurface);
        return nullptr;
    }
    return pstWidget;
}

OSD_SURFACE_PTR osdBarSurfaceDimmed(const tagWIDGET_TEXT_S& stText, const tagBAR_STATE_S& stState,
                                    const SDL_Rect& stRect)
{
    OSD_SURFACE_PTR pstWidget = osdWidgetNew(stRect);
    tagSLIDER_S stSlider;
    OSD_SURFACE_PTR pstLayer = pstWidget != nullptr ? osdWidgetNew(stRect) : nullptr; // dimmed as a whole
    if (pstLayer == nullptr || !osdSliderDraw(pstLayer.get(), stRect, stState, &stSlider)) {
        OSD_TRACE_FAILED(OSD_COMM_GetBarTxtSurfaceWithKETH);
        return nullptr;
    }
    if (stText.bBright == 0) {
        osdImageDim(pstLayer.get());
    }
    osdImagePut(pstLayer.get(), pstWidget.get(), 0, 0);
    if (!osdBarText(stText, pstWidget.get(), stRect)) {
        OSD_TRACE_FAILED(OSD_COMM_GetBarTxtSurfaceWithKETH);
        return nullptr;
    }
    return pstWidget;
}

// One of the two arrows; null with a line in the log.
static OSD_SURFACE_PTR osdArrowedArrow(const char* pcPicName, const SDL_Rect& stSize, OSD_BOOL bBright)
{
    OSD_SURFACE_PTR pstArrow = osdImageGetLit(pcPicName, stSize.w, stSize.h, bBright != 0);
    if (pstArrow == nullptr) {
        osdTrace("[%s:%d] Draw nav_arrow fail\n", OSD_PLACE(OSD_COMM_GetTxtSurfaceAroundArrows));
    }
    return pstArrow;
}

OSD_SURFACE_PTR osdArrowedSurface(const tagWIDGET_TEXT_S& stText, const SDL_Rect& stRect)
{
    const float f32W = osdF32(stRect.w);
    const SDL_Rect stArrow = {0, 0, osdTrunc(f32W * c_f32ArrowWidth), osdTrunc(osdF32(stRect.h) * c_f32ArrowHeight)};
    const int s32TxtW = osdTextWidth(stText.pstFont, stText.pcText); // before the text is made: at the caller's size
    OSD_SURFACE_PTR pstWidget = osdWidgetNew(stRect);
    if (pstWidget == nullptr) {
        OSD_TRACE_FAILED(OSD_COMM_GetTxtSurfaceAroundArrows);
        return nullptr;
    }
    const OSD_SURFACE_PTR pstLeft = osdArrowedArrow(OSD_PIC_ARROW_LEFT, stArrow, stText.bBright);
    if (pstLeft == nullptr) {
        return nullptr;
    }
    osdImagePut(pstLeft.get(), pstWidget.get(), 0, stArrow.h);
    const OSD_SURFACE_PTR pstTxt = osdTextLit(stText.pstFont, stText.pcText, stText.s32Size, stText.bBright);
    if (pstTxt == nullptr) {
        OSD_TRACE_FAILED(OSD_COMM_GetTxtSurfaceAroundArrows);
        return nullptr;
    }
    osdImagePut(pstTxt.get(), pstWidget.get(), osdTrunc(f32W * c_f32ArrowTxtX), 0);
    const OSD_SURFACE_PTR pstRight = osdArrowedArrow(OSD_PIC_ARROW_RIGHT, stArrow, stText.bBright);
    if (pstRight == nullptr) {
        return nullptr;
    }
    osdImagePut(pstRight.get(), pstWidget.get(), osdTrunc(f32W * c_f32ArrowRightGap + osdF32(s32TxtW)), stArrow.h);
    return pstWidget;
}
