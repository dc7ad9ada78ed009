
#include "osd_page.h"
#include <SDL_image.h>

#include <cstdio>

#include "comm/arith.h"
#include "comm/guard.h"
#include "comm/log.h"
#include "menu/core/page.h"
#include "osd_comm.h"
#include "platform/media_service.h"

tagOSD_MENU_MGR_S gstMenuMgr;
uint32_t enMenuStyle;
tagOSD_HANDLER_S gs_OsdHandler;

static constexpr uint8_t gs_u8CanvasAttr = 128;
static constexpr SDL_Rect gs_stBaseHd = {0, 0, 1920, 1080};
static constexpr SDL_Rect gs_stBase4K = {0, 0, 3840, 2160};
static constexpr Uint32 gs_u32SdlParts = SDL_INIT_TIMER | SDL_INIT_HAPTIC | SDL_INIT_EVENTS | SDL_INIT_SENSOR;
static_assert(gs_u32SdlParts == 0xD001, "neither video nor audio");

int OSD_MENU_InitOpensourceRes()
{
    (void)SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // SIGINT and SIGTERM are the host's
    const int s32Ret = SDL_Init(gs_u32SdlParts);
    if (s32Ret == -1) {
        osdTrace("SDL Init Fail, s32Ret = %d\n", s32Ret);
        return s32Ret;
    }
    if (IMG_Init(IMG_INIT_JPG | IMG_INIT_PNG) == -1) {
        (void)puts("IMG Init Fail.");
        SDL_Quit();
        return -1;
    }
    if (TTF_Init() == -1) {
        (void)puts("TTF Init Fail.");
        IMG_Quit();
        SDL_Quit();
        return -1;
    }
    return 0;
}

// A fraction of a length, cut and rounded up to a multiple of 4.
static int osdMenuLength(int s32Base, float f32Frac)
{
    return osdClampS32((int64_t{osdTrunc(osdF32(s32Base) * f32Frac)} + 3) & ~int64_t{3});
}

int osdMenuCalcMenuRect(SDL_Rect* pstBase, tagOSD_MENU_RECT_S* pstFrac, SDL_Rect* pstOut)
{
    *pstOut = {osdMenuLength(pstBase->w, pstFrac->f32X), osdMenuLength(pstBase->h, pstFrac->f32Y),
               osdMenuLength(pstBase->w, pstFrac->f32W), osdMenuLength(pstBase->h, pstFrac->f32H)};
    return 0;
}

// A rectangle of this size in the middle of another one.
static SDL_Rect osdRectCenter(const SDL_Rect& stIn, int s32W, int s32H)
{
    return {osdClampS32(stIn.x + (int64_t{stIn.w} - s32W) / 2), osdClampS32(stIn.y + (int64_t{stIn.h} - s32H) / 2),
            s32W, s32H};
}

int osdMenuCalcPopRect(SDL_Rect* pstMenu, SDL_Rect* pstOut)
{
    *pstOut = osdRectCenter(*pstMenu, pstMenu->w / 4, pstMenu->h / 4);
    return 0;
}

int osdMenuCalcPopWithMsgRect(SDL_Rect* pstMenu, SDL_Rect* pstOut)
{
    *pstOut = osdRectCenter(*pstMenu, pstMenu->w / 3 * 2, pstMenu->h / 4);
    return 0;
}

static void osdFontDrop(TTF_Font** ppstFont)
{
    osdFontClose(*ppstFont);
    *ppstFont = nullptr;
}

int osdMenuCreatSurface(tagOSD_MENU_MGR_S* pstMgr)
{
    pstMgr->pstFont = OSD_COMM_OpenTtfFont();
    if (pstMgr->pstFont == nullptr) {
        return -1;
    }
    pstMgr->pstSelectFont = OSD_COMM_OpenSelectTtfFont();
    if (pstMgr->pstSelectFont == nullptr) {
        osdFontDrop(&pstMgr->pstFont);
        return -1;
    }
    pstMgr->pstSurface = OSD_COMM_CreateSurface(&pstMgr->stCanvas);
    if (pstMgr->pstSurface == nullptr) {
        osdFontDrop(&pstMgr->pstSelectFont);
        osdFontDrop(&pstMgr->pstFont);
        return -1;
    }
    return 0;
}

// What the last successful start made. The managers themselves are the host's to write, so nothing in them is freed.
static tagOSD_MENU_MGR_S gs_stStarted;

static void osdManagerDrop()
{
    if (gs_stStarted.pstSurface != nullptr) {
        (void)OSD_COMM_DestroySurface(&gs_stStarted.stCanvas, gs_stStarted.pstSurface); // 0, as there is a surface
        osdFontDrop(&gs_stStarted.pstSelectFont);
        osdFontDrop(&gs_stStarted.pstFont);
    }
}

static void osdManagerFill(tagOSD_MENU_CFG_S* pstCfg)
{
    tagOSD_MENU_CANVAS_S& stCanvas = gstMenuMgr.stCanvas;
    const bool b4K = pstCfg->bSupport4K == 1;
    stCanvas.u8CanvasAttr = gs_u8CanvasAttr;
    stCanvas.enPixFmt = pstCfg->enPixFmt;
    stCanvas.stBaseRect = b4K ? gs_stBase4K : gs_stBaseHd;
    gstMenuMgr.f32Scale = b4K ? 1.5f : 1.0f;
    stCanvas.f32X = pstCfg->stMenuFrac.f32X;
    stCanvas.f32Y = pstCfg->stMenuFrac.f32Y;
    stCanvas.f32W = pstCfg->stMenuFrac.f32W;
    stCanvas.f32H = pstCfg->stMenuFrac.f32H;
    (void)osdMenuCalcMenuRect(&stCanvas.stBaseRect, &pstCfg->stMenuFrac, &stCanvas.stMenuRect); // these three
    (void)osdMenuCalcPopRect(&stCanvas.stMenuRect, &gstMenuMgr.stPopRect);                      // always give 0
    (void)osdMenuCalcPopWithMsgRect(&stCanvas.stMenuRect, &gstMenuMgr.stPopMsgRect);
}

int OSD_MENU_InitSdkRes(tagOSD_MENU_CFG_S* pstCfg, OSD_BUSINESS_FUNC pfnBusinessFunc,
                        OSD_DATA_ZONE_FUNC pfnGetDataZoneParent)
{
    enMenuStyle = pstCfg->enMenuStyle;
    osdManagerDrop();
    gstPageMgr = {};
    gstMenuMgr = {};
    osdManagerFill(pstCfg);
    gstMenuMgr.pfnBusinessFunc = pfnBusinessFunc;
    gstMenuMgr.pfnGetDataZoneParent = pfnGetDataZoneParent;
    const SDL_Rect& stRect = gstMenuMgr.stCanvas.stMenuRect;
    OSD_LOG(OSD_LOG_LEVEL_INFO, "bSupport4K:%d,stMenuRect info(%d, %d, %d, %d)\n", pstCfg->bSupport4K, stRect.x,
            stRect.y, stRect.w, stRect.h);
    if (MPP_MENU_CreateSdkResource(&gstMenuMgr.stCanvas) != 0) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, " failed\n");
        return -1;
    }
    if (osdMenuCreatSurface(&gstMenuMgr) != 0) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, " failed\n");
        return -1;
    }
    gs_stStarted = gstMenuMgr;
    (void)MPP_MENU_SetMenuCb(OSD_MENU_UpdateCanvas); // the service has no way to refuse
    return 0;
}

int Osd_GetVersionCallback(OSD_GET_FUNC pfnGet, void* pvUser)
{
    gs_OsdHandler = {pfnGet, pvUser};
    return 0;
}

tagOSD_HANDLER_S* OsdMenuGetHandler() { return &gs_OsdHandler; }
