/* Drawing toolkit: fonts, surfaces, text, bitmaps, widgets. Compiles as C11 and as C++17.
 *
 * Holds for every function here, unless its own comment says otherwise:
 *   - int results are 0 on success and -1 on failure, with a line in the log.
 *   - Pointers must not be null.
 *   - A surface handed out is new and the caller's, who frees it with SDL_FreeSurface. On failure the out-argument
 *     stays as it was; what it held before is never freed.
 *   - Sizes and places are in pixels. bSelected: exactly 1 gives white text, anything else grey.
 *   - A function that takes a font changes its size. Calls on the menu's fonts run under g_stMutex. */
#pragma once

#include <SDL.h>
#include <SDL_ttf.h>

#include "osd_canvas.h"
#include "osd_types.h"

OSD_EXTERN_C_BEGIN

/* Opens the regular, the bold or the traditional Chinese font in size 32. A missing bold or traditional Chinese font
 * degrades to the regular one; null when that is missing too. The caller closes it with TTF_CloseFont. */
OSD_API TTF_Font* OSD_COMM_OpenTtfFont(void);
OSD_API TTF_Font* OSD_COMM_OpenSelectTtfFont(void);
OSD_API TTF_Font* OSD_COMM_OpenTraditionalChineseTtfFont(void);

/* Takes two memory blocks from the media service for a canvas whose stMenuRect and enPixFmt are set, and wraps the
 * first in a surface. Null on failure, with both blocks given back. */
OSD_API SDL_Surface* OSD_COMM_CreateSurface(tagOSD_MENU_CANVAS_S* pstCanvas);

/* The reverse: frees the surface, sets the caller's pointer to null and gives both blocks of the canvas back. -1 when
 * the surface is null; with a null canvas 0 for a null surface, else -1, and nothing is freed. Prints no failure. In C
 * the second argument is the address of the pointer, which is what C++ hands over for a reference. */
#ifdef __cplusplus
OSD_API int OSD_COMM_DestroySurface(tagOSD_MENU_CANVAS_S* pstCanvas, SDL_Surface*& pstSurface);
#else
OSD_API int OSD_COMM_DestroySurface(tagOSD_MENU_CANVAS_S* pstCanvas, SDL_Surface** ppstSurface);
#endif

/* Fills a rectangle with the menu's background colour; replaces pixels, doesn't blend. Prints nothing on failure. */
OSD_API int OSD_COMM_DrawMenuBg(SDL_Surface* pstSurface, SDL_Rect stRect);

/* Makes a text. s32FontSize is what TTF_SetFontSize takes; the surface has the size that SDL_ttf gives the text.
 * A text without width gives -1 and no line. */
OSD_API int OSD_COMM_GetTxtSurface(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                   SDL_Surface** ppstTxt);
/* The same surface as OSD_COMM_GetTxtSurface. */
OSD_API int OSD_COMM_GetTxtSurfaceWithCursor(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                             SDL_Surface** ppstTxt);
/* The same in amber; bSelected has no effect. */
OSD_API int OSD_COMM_GetTolvaneTxtSurface(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                          SDL_Surface** ppstTxt);

/* Loads a picture file of any format that SDL_image reads. pcPath is a whole path. Prints nothing. */
OSD_API int OSD_COMM_GetImgSurface(char* pcPath, SDL_Surface** ppstImg);

/* Loads the bitmap of a stem, stretches it to stRect.w by stRect.h and converts it to ARGB4444. */
OSD_API int OSD_COMM_GetImgSurfaceByRect(char* pcPicName, SDL_Rect stRect, SDL_Surface** ppstImg);

/* Makes the value bar: a slider with its text to the right.
 *      0           0.70 w  0.75 w         w
 *      |=====[]======|       |text        |     bar h/4 .. 3h/4, block over the full height
 * s32Index  position, 0 .. s32Count - 1;  s32Count 1 puts the block at the left end
 * stRect    only w and h are read
 * ppstBar   receives an ARGB4444 surface of w by h */
OSD_API int OSD_COMM_GetBarTxtSurface(TTF_Font* pstFont, char* pcText, int s32Index, int s32Count, int s32FontSize,
                                      OSD_BOOL bSelected, SDL_Rect stRect, SDL_Surface** ppstBar);

/* The same; with bSelected 0 bar and block are dimmed to alpha 191. */
OSD_API int OSD_COMM_GetBarTxtSurfaceWithKETH(TTF_Font* pstFont, char* pcText, int s32Index, int s32Count,
                                              int s32FontSize, OSD_BOOL bSelected, SDL_Rect stRect,
                                              SDL_Surface** ppstBar);

/* Makes a text between two arrows, dimmed to alpha 191 with bSelected 0. The font must stand at s32FontSize already.
 *      0        0.11 w    0.13 w + text width
 *      |<       |text      |>                     arrows 0.09 w by 0.42 h, one arrow height below the top
 * stRect    only w and h are read */
OSD_API int OSD_COMM_GetTxtSurfaceAroundArrows(TTF_Font* pstFont, char* pcText, int s32FontSize, OSD_BOOL bSelected,
                                               SDL_Rect stRect, SDL_Surface** ppstTxt);

/* Draws a frame of s32LineWidth pixels inside stRect; u32Color is 0xAARRGGBB. Prints nothing on failure. */
OSD_API int OSD_COMM_DrawRect(SDL_Surface* pstDst, SDL_Rect stRect, int s32LineWidth, unsigned int u32Color);

/* Fills stRect in opaque white: a line as thick as the rectangle is high. Prints nothing on failure. */
OSD_API int OSD_COMM_DrawLine(SDL_Surface* pstDst, SDL_Rect stRect);

/* Draws the arrow that marks an item, to the left of stItemRect, but not left of stMenuRect. */
OSD_API int OSD_COMM_DrawArrows(SDL_Surface* pstDst, SDL_Rect stMenuRect, SDL_Rect stItemRect);

/* Draws a page-turn arrow in the bottom right corner of a surface of the menu's size. */
OSD_API int OSD_COMM_DrawTurnArrows(SDL_Surface* pstDst, SDL_Rect stMenuRect, char* pcPicName);

/* Draws the arrow of an item that opens a page, behind the text in stItemRect; dimmed with bSelected 0. */
OSD_API int OSD_COMM_DrawSubPageEnter(SDL_Surface* pstDst, SDL_Rect stMenuRect, SDL_Rect stItemRect,
                                      OSD_BOOL bSelected);

/* Draws a button's picture at the pen, dimmed with bSelected 0, and moves pstPos->x behind it. */
OSD_API int OSD_COMM_DrawConfirmImg(SDL_Surface* pstDst, SDL_Rect* pstPos, SDL_Rect stMenuRect, OSD_BOOL bSelected,
                                    char* pcPicName);

OSD_EXTERN_C_END
