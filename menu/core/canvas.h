// The redraw of the top page and its push to the channels.
#pragma once

#include "osd_canvas.h"

// Draws the top page and shows it, or hides the overlay; the work of OSD_MENU_RenderCanvas. False where that gives -1.
bool osdCanvasRender();

// Refreshes one channel with the pixels as they are; the work of OSD_MENU_UpdateCanvas.
void osdCanvasUpdate(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach);
