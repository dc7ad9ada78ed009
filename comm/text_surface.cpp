// Text in the menu's colours.
#include <SDL_ttf.h>

#include "comm/guard.h"
#include "comm/log.h"
#include "osd_comm.h"

static constexpr SDL_Color gs_stSelectedColor = {255, 255, 255, 255};
static constexpr SDL_Color gs_stPlainColor = {191, 191, 191, 255};
static constexpr SDL_Color gs_stTolvaneColor = {255, 205, 37, 255};

static OSD_SURFACE_PTR osdTextSurface(TTF_Font* pstFont, const char* pcText, int s32FontSize, SDL_Color stColor)
{
    if (TTF_SetFontSize(pstFont, s32FontSize) != 0) {
        osdTrace("%s %d\n", OSD_PLACE);
        return nullptr;
    }
    return OSD_SURFACE_PTR(TTF_RenderUTF8_Blended(pstFont, pcText, stColor));
}

int OSD_COMM_GetTxtSurface(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected, SDL_Surface** ppstTxt)
{
    const SDL_Color stColor = bSelected == 1 ? gs_stSelectedColor : gs_stPlainColor;
    return osdHandOver(osdTextSurface(pstFont, pcText, s32FontSize, stColor), ppstTxt);
}

int OSD_COMM_GetTxtSurfaceWithCursor(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                     SDL_Surface** ppstTxt)
{
    return OSD_COMM_GetTxtSurface(pstFont, pcText, s32FontSize, bSelected, ppstTxt);
}

int OSD_COMM_GetTolvaneTxtSurface(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL /*bSelected*/,
                                  SDL_Surface** ppstTxt)
{
    return osdHandOver(osdTextSurface(pstFont, pcText, s32FontSize, gs_stTolvaneColor), ppstTxt);
}
