/* The camera's media service, as the menu calls it: pixel memory, and canvases over the video channels. The process
 * that loads the library provides these functions with C linkage. Compiles as C11 and as C++17. */
#pragma once

#include "osd_canvas.h"
#include "osd_types.h"

OSD_EXTERN_C_BEGIN

/* Fills a block (tagOSD_MEM_S) of u32Size bytes; non-zero when nothing was allocated. The menu passes 0 as s32Flag. */
int MPP_AllocMem(const char* pcName, uint32_t u32Size, int s32Flag, void* pstBlock);
int MPP_FreeMem(void* pstBlock);

/* Prepares the service for the menu's canvas, whose blocks don't exist yet; non-zero refuses. */
int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S* pstCanvas);

/* Registers the function that the service may call at any later time to refresh one channel. */
int MPP_MENU_SetMenuCb(int (*pfnUpdate)(OSD_BOOL, OSD_ATTACH_INFO_S*));

/* bShow 1 shows the canvas's present pixels, 0 takes the canvas away; on return the channels show it so. */
int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL bShow, tagOSD_MENU_CANVAS_S* pstCanvas);
int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach, tagOSD_MENU_CANVAS_S* pstCanvas);

OSD_EXTERN_C_END
