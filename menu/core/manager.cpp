#include "menu/core/manager.h"

#include <SDL_image.h>

#include "comm/arith.h"
#include "comm/font.h"
#include "comm/log.h"
#include "comm/surface.h"
#include "platform/media_service.h"

tagOSD_MENU_MGR_S gstMenuMgr;
uint32_t enMenuStyle;
tagOSD_HANDLER_S gs_OsdHandler;

static constexpr uint8_t c_u8CanvasAttr = 128;
static constexpr SDL_Rect c_stBaseHd = {0, 0, 1920, 1080};
static constexpr SDL_Rect c_stBase4K = {0, 0, 3840, 2160};
static constexpr Uint32 c_u32SdlParts = SDL_INIT_TIMER | SDL_INIT_HAPTIC | SDL_INIT_EVENTS | SDL_INIT_SENSOR;
static_assert(c_u32SdlParts == 0xD001, "neither video nor audio");

bool osdLibrariesStart()
{
    (void)SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // SIGINT and SIGTERM are the host's
    const int s32Ret = SDL_Init(c_u32SdlParts);
    if (s32Ret == -1) {
        osdTrace("SDL Init Fail, s32Ret = %d\n", s32Ret);
        return false;
    }
    if (IMG_Init(IMG_INIT_JPG | IMG_INIT_PNG) == -1) {
        osdTrace("IMG Init Fail.\n");
        SDL_Quit();
        return false;
    }
    if (TTF_Init() == -1) {
        osdTrace("TTF Init Fail.\n");
        IMG_Quit();
        SDL_Quit();
        return false;
    }
    return true;
}

// A fraction of a length, cut and rounded up to a multiple of 4.
static int osdMenuLength(int s32Base, float f32Frac)
{
    return osdClampS32((int64_t{osdTrunc(osdF32(s32Base) * f32Frac)} + 3) & ~int64_t{3});
}

SDL_Rect osdMenuRect(const SDL_Rect& stBase, const tagOSD_MENU_RECT_S& stFrac)
{
    return {osdMenuLength(stBase.w, stFrac.f32X), osdMenuLength(stBase.h, stFrac.f32Y),
            osdMenuLength(stBase.w, stFrac.f32W), osdMenuLength(stBase.h, stFrac.f32H)};
}

// A rectangle of this size in the middle of another one.
static SDL_Rect osdRectCenter(const SDL_Rect& stIn, int s32W, int s32H)
{
    return {osdClampS32(stIn.x + (int64_t{stIn.w} - s32W) / 2), osdClampS32(stIn.y + (int64_t{stIn.h} - s32H) / 2),
            s32W, s32H};
}

SDL_Rect osdPopRect(const SDL_Rect& stMenu) { return osdRectCenter(stMenu, stMenu.w / 4, stMenu.h / 4); }

SDL_Rect osdPopMsgRect(const SDL_Rect& stMenu) { return osdRectCenter(stMenu, stMenu.w / 3 * 2, stMenu.h / 4); }

static void osdFontDrop(TTF_Font*& pstFont)
{
    osdFontClose(pstFont);
    pstFont = nullptr;
}

bool osdManagerOpen(tagOSD_MENU_MGR_S* pstMgr)
{
    pstMgr->pstFont = osdFontRegular().release();
    if (pstMgr->pstFont == nullptr) {
        return false;
    }
    pstMgr->pstSelectFont = osdFontBold().release();
    if (pstMgr->pstSelectFont == nullptr) {
        osdFontDrop(pstMgr->pstFont);
        return false;
    }
    pstMgr->pstSurface = osdSurfaceCreate(&pstMgr->stCanvas);
    if (pstMgr->pstSurface == nullptr) {
        osdFontDrop(pstMgr->pstSelectFont);
        osdFontDrop(pstMgr->pstFont);
        return false;
    }
    return true;
}

// What the last successful start made. The managers themselves are the host's to write, so nothing in them is freed.
static tagOSD_MENU_MGR_S gs_stStarted;

static void osdManagerDrop()
{
    if (gs_stStarted.pstSurface != nullptr) {
        osdSurfaceDestroy(&gs_stStarted.stCanvas, gs_stStarted.pstSurface);
        osdFontDrop(gs_stStarted.pstSelectFont);
        osdFontDrop(gs_stStarted.pstFont);
    }
}

static void osdManagerFill(const tagOSD_MENU_CFG_S& stCfg)
{
    tagOSD_MENU_CANVAS_S& stCanvas = gstMenuMgr.stCanvas;
    const bool b4K = stCfg.bSupport4K == 1;
    stCanvas.u8CanvasAttr = c_u8CanvasAttr;
    stCanvas.enPixFmt = stCfg.enPixFmt;
    stCanvas.stBaseRect = b4K ? c_stBase4K : c_stBaseHd;
    gstMenuMgr.f32Scale = b4K ? 1.5f : 1.0f;
    stCanvas.f32X = stCfg.stMenuFrac.f32X;
    stCanvas.f32Y = stCfg.stMenuFrac.f32Y;
    stCanvas.f32W = stCfg.stMenuFrac.f32W;
    stCanvas.f32H = stCfg.stMenuFrac.f32H;
    stCanvas.stMenuRect = osdMenuRect(stCanvas.stBaseRect, stCfg.stMenuFrac);
    gstMenuMgr.stPopRect = osdPopRect(stCanvas.stMenuRect);
    gstMenuMgr.stPopMsgRect = osdPopMsgRect(stCanvas.stMenuRect);
}

bool osdManagerStart(const tagOSD_MENU_CFG_S& stCfg, OSD_BUSINESS_FUNC pfnBusinessFunc,
                     OSD_DATA_ZONE_FUNC pfnGetDataZoneParent)
{
    enMenuStyle = stCfg.enMenuStyle;
    osdManagerDrop();
    gstPageMgr = {};
    gstMenuMgr = {};
    osdManagerFill(stCfg);
    gstMenuMgr.pfnBusinessFunc = pfnBusinessFunc;
    gstMenuMgr.pfnGetDataZoneParent = pfnGetDataZoneParent;
    const SDL_Rect& stRect = gstMenuMgr.stCanvas.stMenuRect;
    OSD_LOG(OSD_MENU_InitSdkRes, OSD_LOG_LEVEL_INFO, "bSupport4K:%d,stMenuRect info(%d, %d, %d, %d)\n",
            stCfg.bSupport4K, stRect.x, stRect.y, stRect.w, stRect.h);
    if (MPP_MENU_CreateSdkResource(&gstMenuMgr.stCanvas) != 0 || !osdManagerOpen(&gstMenuMgr)) {
        OSD_LOG(OSD_MENU_InitSdkRes, OSD_LOG_LEVEL_ERR, " failed\n");
        return false;
    }
    gs_stStarted = gstMenuMgr;
    (void)MPP_MENU_SetMenuCb(OSD_MENU_UpdateCanvas); // the service has no way to refuse
    return true;
}
