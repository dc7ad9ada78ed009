#include "comm/image.h"

#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <unistd.h>

#include "comm/arith.h"
#include "comm/log.h"
#include "comm/paths.h"
#include "osd_comm.h"

int OSD_COMM_GetImgSurface(char* pcPath, SDL_Surface** ppstImg)
{
    return osdHandOver(OSD_SURFACE_PTR(IMG_Load(pcPath)), ppstImg);
}

static OSD_SURFACE_PTR osdImageFit(OSD_SURFACE_PTR pstRaw, int s32W, int s32H)
{
    const double f64ScaleX = static_cast<double>(s32W) / static_cast<double>(pstRaw->w);
    const double f64ScaleY = static_cast<double>(s32H) / static_cast<double>(pstRaw->h);
    OSD_SURFACE_PTR pstScaled(rotozoomSurfaceXY(pstRaw.get(), 0.0, f64ScaleX, f64ScaleY, SMOOTHING_ON));
    if (pstScaled == nullptr) {
        OSD_TRACE_FAILED();
        return nullptr;
    }
    OSD_SURFACE_PTR pstImg(SDL_ConvertSurfaceFormat(pstScaled.get(), SDL_PIXELFORMAT_ARGB4444, 0));
    if (pstImg == nullptr) {
        OSD_TRACE_FAILED();
        return nullptr; // scaled first, then loaded
    }
    pstRaw.reset(); // loaded first, then scaled
    return pstImg;
}

OSD_SURFACE_PTR osdImageGet(const char* pcPicName, int s32W, int s32H)
{
    char acFilePath[OSD_PATH_LEN];
    osdPathBuild(acFilePath, OSD_DIR_PIC, pcPicName, ".bmp");
    if (access(acFilePath, F_OK) != 0) {
        osdTrace("%s %d failed, acFilePath = %s\n", OSD_PLACE, acFilePath);
        return nullptr;
    }
    SDL_Surface* pstRaw = nullptr;
    // rotozoomSurfaceXY must not see a picture without pixels
    if (OSD_COMM_GetImgSurface(acFilePath, &pstRaw) != 0 || pstRaw->w < 1 || pstRaw->h < 1 ||
        pstRaw->pixels == nullptr) {
        OSD_TRACE_FAILED();
        SDL_FreeSurface(pstRaw);
        return nullptr;
    }
    return osdImageFit(OSD_SURFACE_PTR(pstRaw), s32W, s32H);
}

OSD_SURFACE_PTR osdImageGetLit(const char* pcPicName, int s32W, int s32H, bool bBright)
{
    OSD_SURFACE_PTR pstImg = osdImageGet(pcPicName, s32W, s32H);
    if (pstImg != nullptr && !bBright) {
        (void)SDL_SetSurfaceAlphaMod(pstImg.get(), OSD_DIM_ALPHA);
    }
    return pstImg;
}

SDL_Rect osdImagePut(SDL_Surface* pstSrc, SDL_Surface* pstDst, int s32X, int s32Y)
{
    SDL_Rect stPlace = osdRectInRange({s32X, s32Y, pstSrc->w, pstSrc->h});
    (void)SDL_UpperBlit(pstSrc, nullptr, pstDst, &stPlace);
    return stPlace;
}

int OSD_COMM_GetImgSurfaceByRect(char* pcPicName, SDL_Rect stRect, SDL_Surface** ppstImg)
{
    return osdHandOver(osdImageGet(pcPicName, stRect.w, stRect.h), ppstImg);
}
