// Text prompts: each has a canvas of its own, just as large as its text.
#include "osd_prompt.h"

#include <SDL_ttf.h>
#include <unistd.h>

#include <cstdio>

#include "comm/arith.h"
#include "comm/guard.h"
#include "osd_comm.h"
#include "platform/media_service.h"

static constexpr SDL_Rect gs_stPromptBase = {0, 0, 3840, 2160};
static constexpr uint32_t gs_u32PromptPixFmt = 1;  // ARGB4444
static constexpr int gs_s32PromptAlign = 4;        // canvases start on and cover multiples of this
static constexpr unsigned gs_u32PromptSeconds = 3; // so long OSD_PROMPT_Update shows its text

OSD_PROMPT_HANDLER_S gsOsdPromptItem;

static SDL_Color osdPromptColor(const OSD_PROMPT_COLOR_S& stColor)
{
    return {stColor.u8Red, stColor.u8Green, stColor.u8Blue, stColor.u8Alpha};
}

// A text, and the font that is open for this text alone. The text goes first.
struct tagPROMPT_TEXT_S {
    OSD_FONT_PTR pstFont;
    OSD_SURFACE_PTR pstTxt; // null on failure
};

static tagPROMPT_TEXT_S osdPromptText(const OSD_PROMPT_CFG_S& stCfg, const char* pcText)
{
    tagPROMPT_TEXT_S stText = {OSD_FONT_PTR(OSD_COMM_OpenTtfFont()), nullptr};
    TTF_Font* pstFont = stText.pstFont.get();
    if (pstFont != nullptr) {
        (void)TTF_SetFontSize(pstFont, osdClampS32(int64_t{stCfg.u32FontSize} * 2)); // else the size it opened with
        stText.pstTxt.reset(TTF_RenderUTF8_Blended(pstFont, pcText, osdPromptColor(stCfg.stTxtColor)));
    }
    return stText;
}

static void osdPromptFill(SDL_Surface* pstSurface, const SDL_Rect* pstRect, const OSD_PROMPT_COLOR_S& stColor)
{
    const Uint32 u32Pixel =
        SDL_MapRGBA(pstSurface->format, stColor.u8Red, stColor.u8Green, stColor.u8Blue, stColor.u8Alpha);
    (void)SDL_FillRect(pstSurface, pstRect, u32Pixel); // a text without ground is still a text
}

static int osdPromptAlignUp(int s32Size)
{
    const int s32Over = s32Size % gs_s32PromptAlign;
    return s32Over == 0 ? s32Size : s32Size - s32Over + gs_s32PromptAlign;
}

// Places the canvas for a text; gives the text's place on the canvas.
static SDL_Rect osdPromptPlace(OSD_PROMPT_HANDLER_S* pstHandler, const SDL_Surface* pstTxt)
{
    tagOSD_MENU_CANVAS_S& stCanvas = pstHandler->stCanvas;
    const SDL_Rect& stBase = stCanvas.stBaseRect;
    const int s32X = osdTruncF64(static_cast<double>(stBase.w - pstTxt->w) * pstHandler->stCfg.f64XRatio);
    const int s32Y = osdTruncF64(static_cast<double>(stBase.h - pstTxt->h) * pstHandler->stCfg.f64YRatio);
    const SDL_Rect stOnCanvas = {s32X % gs_s32PromptAlign, s32Y % gs_s32PromptAlign, osdPromptAlignUp(pstTxt->w),
                                 osdPromptAlignUp(pstTxt->h)};
    stCanvas.stMenuRect = {s32X - stOnCanvas.x, s32Y - stOnCanvas.y, stOnCanvas.w, stOnCanvas.h};
    stCanvas.f32W = osdF32(pstTxt->w) / osdF32(stBase.w);
    stCanvas.f32H = osdF32(pstTxt->h) / osdF32(stBase.h);
    return stOnCanvas;
}

int OSD_PROMPT_CreateEx(OSD_PROMPT_HANDLER_S* pstHandler, OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    pstHandler->stCfg = stCfg;
    pstHandler->stCanvas.stBaseRect = gs_stPromptBase;
    pstHandler->stCanvas.enPixFmt = gs_u32PromptPixFmt;
    tagPROMPT_TEXT_S stText = osdPromptText(stCfg, pcText);
    SDL_Surface* pstTxt = stText.pstTxt.get();
    if (pstTxt == nullptr) {
        return -1;
    }
    SDL_Rect stOnCanvas = osdPromptPlace(pstHandler, pstTxt);
    pstHandler->pstSurface = OSD_COMM_CreateSurface(&pstHandler->stCanvas);
    if (pstHandler->pstSurface == nullptr) {
        return -1;
    }
    osdPromptFill(pstHandler->pstSurface, &stOnCanvas, stCfg.stBgColor);
    (void)SDL_UpperBlit(pstTxt, nullptr, pstHandler->pstSurface, &stOnCanvas);
    if (MPP_MENU_UpdateCanvasToAllChns(1, &pstHandler->stCanvas) != 0) {
        (void)puts("failed update all target");
        (void)OSD_COMM_DestroySurface(&pstHandler->stCanvas, pstHandler->pstSurface); // 0, as there is a surface
        stText.pstFont.reset();                                                       // the font goes first here
        return -1;
    }
    stText.pstFont.reset();
    return 0;
}

int OSD_PROMPT_UpdateTextEx(OSD_PROMPT_HANDLER_S* pstHandler, OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    if (pstHandler->pstSurface == nullptr) {
        return -1;
    }
    const tagPROMPT_TEXT_S stText = osdPromptText(stCfg, pcText);
    SDL_Surface* pstTxt = stText.pstTxt.get();
    if (pstTxt == nullptr) {
        return -1;
    }
    const SDL_Rect& stCanvas = pstHandler->stCanvas.stMenuRect;
    SDL_Rect stMiddle = {(stCanvas.w - pstTxt->w) / 2, (stCanvas.h - pstTxt->h) / 2, 0, 0};
    osdPromptFill(pstHandler->pstSurface, nullptr, stCfg.stBgColor);
    (void)SDL_UpperBlit(pstTxt, nullptr, pstHandler->pstSurface, &stMiddle);
    (void)MPP_MENU_UpdateCanvasToAllChns(1, &pstHandler->stCanvas); // the canvas is on the channels already
    return 0;
}

int OSD_PROMPT_DestroyEx(OSD_PROMPT_HANDLER_S* pstHandler)
{
    (void)MPP_MENU_UpdateCanvasToAllChns(0, &pstHandler->stCanvas);               // the canvas goes, shown or not
    (void)OSD_COMM_DestroySurface(&pstHandler->stCanvas, pstHandler->pstSurface); // -1 when there was none
    return 0;
}

int OSD_PROMPT_Create(OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    return OSD_PROMPT_CreateEx(&gsOsdPromptItem, stCfg, pcText);
}

int OSD_PROMPT_UpdateText(OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    return OSD_PROMPT_UpdateTextEx(&gsOsdPromptItem, stCfg, pcText);
}

int OSD_PROMPT_Destroy() { return OSD_PROMPT_DestroyEx(&gsOsdPromptItem); }

int OSD_PROMPT_Show(OSD_BOOL bShow) { return MPP_MENU_UpdateCanvasToAllChns(bShow, &gsOsdPromptItem.stCanvas); }

int OSD_PROMPT_Update(OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    if (stCfg.bSuppress != 0) {
        return 0;
    }
    (void)OSD_PROMPT_Create(stCfg, pcText); // the caller counts on the three seconds, shown or not
    (void)sleep(gs_u32PromptSeconds);       // a signal may shorten them
    return OSD_PROMPT_Destroy();
}
