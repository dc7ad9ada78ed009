// The drawing toolkit's C functions: each hands over to the C++ behind it.
#include "comm/arrow.h"
#include "comm/font.h"
#include "comm/image.h"
#include "comm/shape.h"
#include "comm/surface.h"
#include "comm/text_surface.h"
#include "comm/widget.h"
#include "osd_comm.h"

// What a host reads as 0 for success.
static int osdResult(bool bDone) { return bDone ? 0 : -1; }

TTF_Font* OSD_COMM_OpenTtfFont() { return osdFontRegular().release(); }
TTF_Font* OSD_COMM_OpenSelectTtfFont() { return osdFontBold().release(); }
TTF_Font* OSD_COMM_OpenTraditionalChineseTtfFont() { return osdFontTraditionalChinese().release(); }

SDL_Surface* OSD_COMM_CreateSurface(tagOSD_MENU_CANVAS_S* pstCanvas) { return osdSurfaceCreate(pstCanvas); }

int OSD_COMM_DestroySurface(tagOSD_MENU_CANVAS_S* pstCanvas, SDL_Surface*& pstSurface)
{
    if (pstCanvas == nullptr || pstSurface == nullptr) {
        return osdResult(pstCanvas == nullptr && pstSurface == nullptr);
    }
    osdSurfaceDestroy(pstCanvas, pstSurface);
    return 0;
}

int OSD_COMM_DrawMenuBg(SDL_Surface* pstSurface, SDL_Rect stRect)
{
    return osdResult(osdShapeBackground(pstSurface, stRect));
}

int OSD_COMM_GetTxtSurface(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected, SDL_Surface** ppstTxt)
{
    return osdHandOver(osdTextLit(pstFont, pcText, s32FontSize, bSelected), ppstTxt);
}

int OSD_COMM_GetTxtSurfaceWithCursor(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                     SDL_Surface** ppstTxt)
{
    return osdHandOver(osdTextSurface(pstFont, pcText, s32FontSize, osdColorLit(bSelected), __func__), ppstTxt);
}

int OSD_COMM_GetTolvaneTxtSurface(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL /*bSelected*/,
                                  SDL_Surface** ppstTxt)
{
    return osdHandOver(osdTextAmber(pstFont, pcText, s32FontSize), ppstTxt);
}

int OSD_COMM_GetImgSurface(char* pcPath, SDL_Surface** ppstImg) { return osdHandOver(osdImageLoad(pcPath), ppstImg); }

int OSD_COMM_GetImgSurfaceByRect(char* pcPicName, SDL_Rect stRect, SDL_Surface** ppstImg)
{
    return osdHandOver(osdImageGet(pcPicName, stRect.w, stRect.h), ppstImg);
}

int OSD_COMM_GetBarTxtSurface(TTF_Font* pstFont, char* pcText, int s32Index, int s32Count, int s32FontSize,
                              OSD_BOOL bSelected, SDL_Rect stRect, SDL_Surface** ppstBar)
{
    return osdHandOver(osdBarSurface({pstFont, pcText, s32FontSize, bSelected}, {s32Index, s32Count}, stRect), ppstBar);
}

int OSD_COMM_GetBarTxtSurfaceWithKETH(TTF_Font* pstFont, char* pcText, int s32Index, int s32Count, int s32FontSize,
                                      OSD_BOOL bSelected, SDL_Rect stRect, SDL_Surface** ppstBar)
{
    const tagWIDGET_TEXT_S stText = {pstFont, pcText, s32FontSize, bSelected};
    return osdHandOver(osdBarSurfaceDimmed(stText, {s32Index, s32Count}, stRect), ppstBar);
}

int OSD_COMM_GetTxtSurfaceAroundArrows(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                       SDL_Rect stRect, SDL_Surface** ppstTxt)
{
    return osdHandOver(osdArrowedSurface({pstFont, pcText, s32FontSize, bSelected}, stRect), ppstTxt);
}

int OSD_COMM_DrawRect(SDL_Surface* pstDst, SDL_Rect stRect, int s32LineWidth, unsigned int u32Color)
{
    return osdResult(osdShapeFrame(pstDst, stRect, s32LineWidth, osdColorArgb(u32Color)));
}

int OSD_COMM_DrawLine(SDL_Surface* pstDst, SDL_Rect stRect) { return osdResult(osdShapeLine(pstDst, stRect)); }

int OSD_COMM_DrawArrows(SDL_Surface* pstDst, SDL_Rect stMenuRect, SDL_Rect stItemRect)
{
    return osdResult(osdArrowMark(pstDst, stMenuRect, stItemRect));
}

int OSD_COMM_DrawTurnArrows(SDL_Surface* pstDst, SDL_Rect stMenuRect, char* pcPicName)
{
    return osdResult(osdArrowTurn(pstDst, stMenuRect, pcPicName));
}

int OSD_COMM_DrawSubPageEnter(SDL_Surface* pstDst, SDL_Rect stMenuRect, SDL_Rect stItemRect, OSD_BOOL bSelected)
{
    return osdResult(osdArrowEnter(pstDst, stMenuRect, stItemRect, bSelected != 0));
}

int OSD_COMM_DrawConfirmImg(SDL_Surface* pstDst, SDL_Rect* pstPos, SDL_Rect stMenuRect, OSD_BOOL bSelected,
                            char* pcPicName)
{
    return osdResult(osdArrowButton(pstDst, pstPos, stMenuRect, bSelected != 0, pcPicName));
}
