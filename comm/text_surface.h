// Texts as surfaces, and their sizes.
#pragma once

#include <SDL_ttf.h>

#include "comm/color.h"
#include "comm/guard.h"
#include "comm/log.h"
#include "osd_comm.h"

// A text in a size and a colour; null on failure, which is said in the name of pcFunc.
OSD_SURFACE_PTR osdTextSurface(TTF_Font* pstFont, const char* pcText, int s32FontSize, SDL_Color stColor,
                               const char* pcFunc);

// The text of OSD_COMM_GetTxtSurface.
inline OSD_SURFACE_PTR osdTextLit(TTF_Font* pstFont, const char* pcText, int s32FontSize, OSD_BOOL bBright)
{
    return osdTextSurface(pstFont, pcText, s32FontSize, osdColorLit(bBright), OSD_NAME(OSD_COMM_GetTxtSurface));
}

// The text of OSD_COMM_GetTolvaneTxtSurface.
inline OSD_SURFACE_PTR osdTextAmber(TTF_Font* pstFont, const char* pcText, int s32FontSize)
{
    return osdTextSurface(pstFont, pcText, s32FontSize, OSD_COLOR_AMBER, OSD_NAME(OSD_COMM_GetTolvaneTxtSurface));
}

// Width and height of a text, and its width alone, at the size in which the font stands; 0 where it can't be measured.
SDL_Rect osdTextSize(TTF_Font* pstFont, const char* pcText);
int osdTextWidth(TTF_Font* pstFont, const char* pcText);
