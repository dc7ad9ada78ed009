#include "comm/text_surface.h"

#include "comm/font.h"

OSD_SURFACE_PTR osdTextSurface(TTF_Font* pstFont, const char* pcText, int s32FontSize, SDL_Color stColor,
                               const char* pcFunc)
{
    return osdFontSetSize(pstFont, s32FontSize, pcFunc)
               ? OSD_SURFACE_PTR(TTF_RenderUTF8_Blended(pstFont, pcText, stColor))
               : nullptr;
}

SDL_Rect osdTextSize(TTF_Font* pstFont, const char* pcText)
{
    SDL_Rect stSize = {};
    (void)TTF_SizeUTF8(pstFont, pcText, &stSize.w, &stSize.h);
    return stSize;
}

int osdTextWidth(TTF_Font* pstFont, const char* pcText)
{
    int s32W = 0;
    (void)TTF_SizeUTF8(pstFont, pcText, &s32W, nullptr);
    return s32W;
}
