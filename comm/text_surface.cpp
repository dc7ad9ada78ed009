// Text in the menu's colours.
#include <SDL_ttf.h>

#include "comm/color.h"
#include "comm/guard.h"
#include "comm/log.h"
#include "osd_comm.h"

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
    const SDL_Color stColor = bSelected == 1 ? OSD_COLOR_SELECTED : OSD_COLOR_PLAIN;
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
    return osdHandOver(osdTextSurface(pstFont, pcText, s32FontSize, OSD_COLOR_AMBER), ppstTxt);
}
