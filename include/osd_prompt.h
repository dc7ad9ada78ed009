/* Text over the picture, apart from the menu: prompts and the zoom ratio. Compiles as C11 and as C++17.
 *
 * Holds for every function here, unless its own comment says otherwise:
 *   - int results are 0 on success and -1 on failure.
 *   - pcText is zero-terminated UTF-8 and stays the caller's; a text without width can't be shown.
 *   - Calls on one handler come from one thread at a time. They may run beside the menu's functions: fonts and canvas
 *     are a prompt's own.
 *
 * Order of calls: create, then any number of updates, then destroy. Places are on a base of 3840 by 2160 pixels,
 * whatever the base of the menu. */
#pragma once

#include <SDL.h>

#include "osd_canvas.h"
#include "osd_types.h"

OSD_EXTERN_C_BEGIN

/* Alpha comes first here, last in SDL's colours. */
typedef struct OSD_PROMPT_COLOR_S {
    uint8_t u8Alpha;
    uint8_t u8Red;
    uint8_t u8Green;
    uint8_t u8Blue;
} OSD_PROMPT_COLOR_S;

typedef struct OSD_PROMPT_CFG_S {
    uint32_t u32FontSize; /* half the size in pixels: 164 gives 328 */
    OSD_BOOL bSuppress;   /* not 0: OSD_PROMPT_Update shows nothing; the other functions don't read it */
    OSD_PROMPT_COLOR_S stTxtColor;
    OSD_PROMPT_COLOR_S stBgColor;
    double f64XRatio; /* 0.0 left, 0.5 centred, 1.0 right */
    double f64YRatio; /* 0.0 top, 0.5 centred, 1.0 bottom */
} OSD_PROMPT_CFG_S;

/* One prompt. Zeroed before it is created for the first time. */
typedef struct OSD_PROMPT_HANDLER_S {
    OSD_PROMPT_CFG_S stCfg; /* as given at creation */
    tagOSD_MENU_CANVAS_S stCanvas;
    SDL_Surface* pstSurface; /* over the canvas's pixels; null while the prompt doesn't exist */
} OSD_PROMPT_HANDLER_S;

static_assert(sizeof(OSD_PROMPT_CFG_S) == 32, "prompt configuration");
static_assert(offsetof(OSD_PROMPT_CFG_S, stBgColor) == 12, "prompt configuration");
static_assert(offsetof(OSD_PROMPT_CFG_S, f64XRatio) == 16, "prompt configuration");
#if UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu
static_assert(sizeof(OSD_PROMPT_HANDLER_S) == 176, "prompt record");
static_assert(offsetof(OSD_PROMPT_HANDLER_S, stCanvas) == 32, "prompt record");
static_assert(offsetof(OSD_PROMPT_HANDLER_S, pstSurface) == 168, "prompt record");
#endif

extern OSD_API OSD_PROMPT_HANDLER_S gsOsdPromptItem;    /* the general prompt */
extern OSD_API OSD_PROMPT_HANDLER_S gsZoomRatioOsdItem; /* the zoom ratio */
extern OSD_API uint32_t bZoomRatioActive;               /* 1 while gsZoomRatioOsdItem is on the picture */

/* Makes a canvas as large as the text, and shows it. The caller destroys a live prompt first: what the handler
 * holds is not looked at. On failure nothing that was made is left. */
OSD_API int OSD_PROMPT_CreateEx(OSD_PROMPT_HANDLER_S* pstHandler, OSD_PROMPT_CFG_S stCfg, char* pcText);

/* Puts another text in the middle of a live canvas, whose place and size stay; a longer text is clipped. Of stCfg only
 * the font size and the colours count. Returns -1 without a live canvas. */
OSD_API int OSD_PROMPT_UpdateTextEx(OSD_PROMPT_HANDLER_S* pstHandler, OSD_PROMPT_CFG_S stCfg, char* pcText);

/* Takes the prompt off the picture and frees its canvas; does no harm without one. Returns 0. */
OSD_API int OSD_PROMPT_DestroyEx(OSD_PROMPT_HANDLER_S* pstHandler);

/* The same three on the general prompt. */
OSD_API int OSD_PROMPT_Create(OSD_PROMPT_CFG_S stCfg, char* pcText);
OSD_API int OSD_PROMPT_UpdateText(OSD_PROMPT_CFG_S stCfg, char* pcText);
OSD_API int OSD_PROMPT_Destroy(void);

/* Shows (1) or hides (0) the live general prompt. Returns what the media service returns. */
OSD_API int OSD_PROMPT_Show(OSD_BOOL bShow);

/* Shows the general prompt, which must not be live, for three seconds, which hold the caller. Returns 0. */
OSD_API int OSD_PROMPT_Update(OSD_PROMPT_CFG_S stCfg, char* pcText);

/* Shows or updates the zoom ratio in the middle of the picture, with one decimal place. While the marker file
 * /tmp/.mpp_reloading exists nothing happens and the result is 0. */
OSD_API int OSD_PROMPT_ShowZoomRatio(float f32Ratio);

/* Takes the zoom ratio away. */
OSD_API int OSD_PROMPT_HideZoomRatio(void);

/* 1 while the zoom ratio is on the picture. */
OSD_API uint32_t OSD_PROMPT_IsZoomRatioActive(void);

OSD_EXTERN_C_END
