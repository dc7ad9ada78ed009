#include "comm/surface.h"

#include <iterator>

#include "comm/log.h"
#include "osd_comm.h"
#include "platform/media_service.h"

struct tagPIX_FMT_S {
    uint32_t u32Format; // SDL_PixelFormatEnum
    int s32Bits;
};

static constexpr tagPIX_FMT_S c_astPixFmt[] = { // by tagOSD_MENU_CANVAS_S::enPixFmt
    {SDL_PIXELFORMAT_ARGB1555, 16},
    {SDL_PIXELFORMAT_ARGB4444, 16},
    {SDL_PIXELFORMAT_ARGB8888, 32}};

static tagPIX_FMT_S osdPixFmt(uint32_t enPixFmt)
{
    return enPixFmt < std::size(c_astPixFmt) ? c_astPixFmt[enPixFmt] : tagPIX_FMT_S{0, 0};
}

static void osdMemFree(tagOSD_MEM_S* pstMem) { (void)MPP_FreeMem(pstMem); }

// Takes both blocks or none.
static bool osdSurfaceAlloc(tagOSD_MENU_CANVAS_S* pstCanvas, uint32_t u32Size)
{
    if (MPP_AllocMem("menu_mem", u32Size, 0, &pstCanvas->stMem) != 0) {
        return false;
    }
    if (MPP_AllocMem("menu_scale", u32Size, 0, &pstCanvas->stScaleMem) != 0) {
        osdMemFree(&pstCanvas->stMem);
        return false;
    }
    return true;
}

static void osdSurfaceFree(tagOSD_MENU_CANVAS_S* pstCanvas)
{
    osdMemFree(&pstCanvas->stScaleMem);
    osdMemFree(&pstCanvas->stMem);
}

SDL_Surface* osdSurfaceCreate(tagOSD_MENU_CANVAS_S* pstCanvas)
{
    const SDL_Rect& stRect = pstCanvas->stMenuRect;
    const tagPIX_FMT_S stFmt = osdPixFmt(pstCanvas->enPixFmt);
    const int s32PixelBytes = stFmt.s32Bits / 8;
    const int64_t s64Size = int64_t{stRect.w} * stRect.h * s32PixelBytes;
    // The fractions behind the rectangle are the host's: no size but a sensible one goes to the media service.
    if (stRect.w < 0 || stRect.h < 0 || stRect.w > UINT16_MAX || stRect.h > UINT16_MAX || s64Size > INT32_MAX) {
        OSD_LOG(OSD_COMM_CreateSurface, OSD_LOG_LEVEL_ERR, "no surface of %d by %d pixels\n", stRect.w, stRect.h);
        return nullptr;
    }
    if (!osdSurfaceAlloc(pstCanvas, static_cast<uint32_t>(s64Size))) {
        return nullptr;
    }
    SDL_Surface* pstSurface = nullptr;
    if (pstCanvas->stMem.pvVirAddr != nullptr) {
        pstSurface = SDL_CreateRGBSurfaceWithFormatFrom(pstCanvas->stMem.pvVirAddr, stRect.w, stRect.h, stFmt.s32Bits,
                                                        stRect.w * s32PixelBytes, stFmt.u32Format);
    }
    if (pstSurface == nullptr) {
        osdTrace("Create RGB Surface failed!\n");
        osdSurfaceFree(pstCanvas);
    }
    return pstSurface;
}

void osdSurfaceDestroy(tagOSD_MENU_CANVAS_S* pstCanvas, SDL_Surface*& pstSurface)
{
    osdTrace("------------------[%s:%d]------------ \n", OSD_PLACE(OSD_COMM_DestroySurface));
    SDL_FreeSurface(pstSurface);
    pstSurface = nullptr;
    osdSurfaceFree(pstCanvas);
}

int osdSurfacePush(tagOSD_MENU_CANVAS_S* pstCanvas, OSD_BOOL bShow)
{
    return MPP_MENU_UpdateCanvasToAllChns(bShow, pstCanvas);
}
