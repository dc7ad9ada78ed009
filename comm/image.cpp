#include "comm/image.h"

#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <unistd.h>

#include <utility>

#include "comm/arith.h"
#include "comm/log.h"
#include "comm/paths.h"
#include "osd_comm.h"

static constexpr Uint8 c_u8DimAlpha = 191; // of pictures of what is not selected

OSD_SURFACE_PTR osdImageLoad(const char* pcPath) { return OSD_SURFACE_PTR(IMG_Load(pcPath)); }

// On success the loaded picture is freed before the stretched one, on failure behind it.
static OSD_SURFACE_PTR osdImageFit(OSD_SURFACE_PTR pstRaw, int s32W, int s32H)
{
    const double f64ScaleX = static_cast<double>(s32W) / static_cast<double>(pstRaw->w);
    const double f64ScaleY = static_cast<double>(s32H) / static_cast<double>(pstRaw->h);
    OSD_SURFACE_PTR pstScaled(rotozoomSurfaceXY(pstRaw.get(), 0.0, f64ScaleX, f64ScaleY, SMOOTHING_ON));
    if (pstScaled == nullptr) {
        OSD_TRACE_FAILED(OSD_COMM_GetImgSurfaceByRect);
        return nullptr;
    }
    OSD_SURFACE_PTR pstImg(SDL_ConvertSurfaceFormat(pstScaled.get(), SDL_PIXELFORMAT_ARGB4444, 0));
    if (pstImg == nullptr) {
        OSD_TRACE_FAILED(OSD_COMM_GetImgSurfaceByRect);
        return nullptr;
    }
    pstRaw.reset();
    return pstImg;
}

OSD_SURFACE_PTR osdImageGet(const char* pcPicName, int s32W, int s32H)
{
    char acFilePath[OSD_PATH_LEN];
    osdPathBuild(acFilePath, OSD_DIR_PIC, pcPicName, ".bmp");
    if (access(acFilePath, F_OK) != 0) {
        osdTrace("%s %d failed, acFilePath = %s\n", OSD_PLACE(OSD_COMM_GetImgSurfaceByRect), acFilePath);
        return nullptr;
    }
    OSD_SURFACE_PTR pstRaw = osdImageLoad(acFilePath);
    // rotozoomSurfaceXY must not see a picture without pixels
    if (pstRaw == nullptr || pstRaw->w < 1 || pstRaw->h < 1 || pstRaw->pixels == nullptr) {
        OSD_TRACE_FAILED(OSD_COMM_GetImgSurfaceByRect);
        return nullptr;
    }
    return osdImageFit(std::move(pstRaw), s32W, s32H);
}

OSD_SURFACE_PTR osdImageGetLit(const char* pcPicName, int s32W, int s32H, bool bBright)
{
    OSD_SURFACE_PTR pstImg = osdImageGet(pcPicName, s32W, s32H);
    if (pstImg != nullptr && !bBright) {
        osdImageDim(pstImg.get());
    }
    return pstImg;
}

void osdImageDim(SDL_Surface* pstImg) { (void)SDL_SetSurfaceAlphaMod(pstImg, c_u8DimAlpha); }

void osdImagePut(SDL_Surface* pstSrc, SDL_Surface* pstDst, int s32X, int s32Y)
{
    osdImagePutClipped(pstSrc, pstDst, s32X, s32Y);
}

SDL_Rect osdImagePutClipped(SDL_Surface* pstSrc, SDL_Surface* pstDst, int s32X, int s32Y)
{
    SDL_Rect stPlace = osdRectInRange({s32X, s32Y, pstSrc->w, pstSrc->h});
    (void)SDL_UpperBlit(pstSrc, nullptr, pstDst, &stPlace);
    return stPlace;
}
