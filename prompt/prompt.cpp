#include "prompt/prompt.h"

#include <SDL_ttf.h>
#include <unistd.h>

#include "comm/arith.h"
#include "comm/font.h"
#include "comm/log.h"
#include "comm/shape.h"
#include "comm/surface.h"

static constexpr SDL_Rect c_stPromptBase = {0, 0, 3840, 2160};
static constexpr uint32_t c_u32PromptPixFmt = 1;  // ARGB4444
static constexpr int c_s32PromptAlign = 4;        // canvases start on and cover multiples of this
static constexpr unsigned c_u32PromptSeconds = 3; // how long OSD_PROMPT_Update shows its text

OSD_PROMPT_HANDLER_S gsOsdPromptItem;

static SDL_Color osdPromptColor(const OSD_PROMPT_COLOR_S& stColor)
{
    return {stColor.u8Red, stColor.u8Green, stColor.u8Blue, stColor.u8Alpha};
}

// A text, and the font that is open for this text alone; the text is null on failure.
struct tagPROMPT_TEXT_S {
    OSD_FONT_PTR pstFont;
    OSD_SURFACE_PTR pstTxt;
};

static tagPROMPT_TEXT_S osdPromptText(const OSD_PROMPT_CFG_S& stCfg, const char* pcText)
{
    tagPROMPT_TEXT_S stText = {osdFontRegular(), nullptr};
    TTF_Font* pstFont = stText.pstFont.get();
    if (pstFont != nullptr) {
        (void)TTF_SetFontSize(pstFont, osdClampS32(int64_t{stCfg.u32FontSize} * 2)); // else the size it opened with
        stText.pstTxt.reset(TTF_RenderUTF8_Blended(pstFont, pcText, osdPromptColor(stCfg.stTxtColor)));
    }
    return stText;
}

// Fills the ground, a null rectangle being the whole canvas, and blits the text onto it. Failures are ignored.
static void osdPromptDraw(SDL_Surface* pstSurface, SDL_Surface* pstTxt, const SDL_Rect* pstGround, SDL_Rect stPlace,
                          const OSD_PROMPT_COLOR_S& stGround)
{
    (void)SDL_FillRect(pstSurface, pstGround, osdShapePixel(pstSurface, osdPromptColor(stGround)));
    (void)SDL_UpperBlit(pstTxt, nullptr, pstSurface, &stPlace);
}

static int osdPromptAlignUp(int s32Size)
{
    const int s32Over = s32Size % c_s32PromptAlign;
    return s32Over == 0 ? s32Size : s32Size - s32Over + c_s32PromptAlign;
}

// Places the canvas for a text; gives the text's place on the canvas.
static SDL_Rect osdPromptPlace(OSD_PROMPT_HANDLER_S* pstHandler, const SDL_Surface* pstTxt)
{
    tagOSD_MENU_CANVAS_S& stCanvas = pstHandler->stCanvas;
    const SDL_Rect& stBase = stCanvas.stBaseRect;
    const int s32X = osdTruncF64(static_cast<double>(stBase.w - pstTxt->w) * pstHandler->stCfg.f64XRatio);
    const int s32Y = osdTruncF64(static_cast<double>(stBase.h - pstTxt->h) * pstHandler->stCfg.f64YRatio);
    const SDL_Rect stOnCanvas = {s32X % c_s32PromptAlign, s32Y % c_s32PromptAlign, osdPromptAlignUp(pstTxt->w),
                                 osdPromptAlignUp(pstTxt->h)};
    stCanvas.stMenuRect = {s32X - stOnCanvas.x, s32Y - stOnCanvas.y, stOnCanvas.w, stOnCanvas.h};
    stCanvas.f32W = osdF32(pstTxt->w) / osdF32(stBase.w);
    stCanvas.f32H = osdF32(pstTxt->h) / osdF32(stBase.h);
    return stOnCanvas;
}

// Makes the canvas for the text and shows it; false with nothing left of it.
static bool osdPromptShow(OSD_PROMPT_HANDLER_S* pstHandler, SDL_Surface* pstTxt)
{
    tagOSD_MENU_CANVAS_S& stCanvas = pstHandler->stCanvas;
    const SDL_Rect stOnCanvas = osdPromptPlace(pstHandler, pstTxt);
    pstHandler->pstSurface = osdSurfaceCreate(&stCanvas);
    if (pstHandler->pstSurface == nullptr) {
        return false;
    }
    osdPromptDraw(pstHandler->pstSurface, pstTxt, &stOnCanvas, stOnCanvas, pstHandler->stCfg.stBgColor);
    if (osdSurfacePush(&stCanvas, 1) != 0) {
        osdTrace("failed update all target\n");
        osdSurfaceDestroy(&stCanvas, pstHandler->pstSurface);
        return false;
    }
    return true;
}

bool osdPromptCreate(OSD_PROMPT_HANDLER_S* pstHandler, const OSD_PROMPT_CFG_S& stCfg, const char* pcText)
{
    pstHandler->stCfg = stCfg;
    pstHandler->stCanvas.stBaseRect = c_stPromptBase;
    pstHandler->stCanvas.enPixFmt = c_u32PromptPixFmt;
    tagPROMPT_TEXT_S stText = osdPromptText(stCfg, pcText);
    const bool bShown = stText.pstTxt != nullptr && osdPromptShow(pstHandler, stText.pstTxt.get());
    stText.pstFont.reset(); // before the text
    return bShown;
}

bool osdPromptChange(OSD_PROMPT_HANDLER_S* pstHandler, const OSD_PROMPT_CFG_S& stCfg, const char* pcText)
{
    if (pstHandler->pstSurface == nullptr) {
        return false;
    }
    const tagPROMPT_TEXT_S stText = osdPromptText(stCfg, pcText); // its text is freed before its font
    SDL_Surface* pstTxt = stText.pstTxt.get();
    if (pstTxt == nullptr) {
        return false;
    }
    const SDL_Rect& stCanvas = pstHandler->stCanvas.stMenuRect;
    const SDL_Rect stMiddle = {(stCanvas.w - pstTxt->w) / 2, (stCanvas.h - pstTxt->h) / 2, 0, 0};
    osdPromptDraw(pstHandler->pstSurface, pstTxt, nullptr, stMiddle, stCfg.stBgColor);
    osdSurfacePush(&pstHandler->stCanvas, 1); // the canvas is on the channels already
    return true;
}

void osdPromptDestroy(OSD_PROMPT_HANDLER_S* pstHandler)
{
    osdSurfacePush(&pstHandler->stCanvas, 0); // a canvas that can't be hidden is destroyed all the same
    if (pstHandler->pstSurface != nullptr) {
        osdSurfaceDestroy(&pstHandler->stCanvas, pstHandler->pstSurface);
    }
}

void osdPromptFlash(const OSD_PROMPT_CFG_S& stCfg, const char* pcText)
{
    osdPromptCreate(&gsOsdPromptItem, stCfg, pcText); // the caller counts on the three seconds, shown or not
    (void)sleep(c_u32PromptSeconds);                  // a signal may shorten them
    osdPromptDestroy(&gsOsdPromptItem);
}
