#include "menu/core/canvas.h"

#include <pthread.h>

#include "comm/color.h"
#include "comm/log.h"
#include "comm/shape.h"
#include "comm/surface.h"
#include "menu/core/layout.h"
#include "menu/core/page.h"
#include "osd_menu.h"
#include "platform/media_service.h"

pthread_mutex_t g_stMutex = PTHREAD_MUTEX_INITIALIZER;

// A background, row or bitmap that fails doesn't keep the page from the channels.
static void osdCanvasDraw(tagPAGE_NODE_S* pstPage, const tagLAYOUT_S& stLayout)
{
    osdShapeBackground(gstMenuMgr.pstSurface, *stLayout.pstRect);
    if (stLayout.s32Frame > 0) {
        osdShapeFrame(gstMenuMgr.pstSurface, *stLayout.pstRect, stLayout.s32Frame, OSD_COLOR_SELECTED);
    }
    stLayout.pfnDrawPage(pstPage);
}

static bool osdCanvasRedraw()
{
    if (gstPageMgr.s32PageCnt < 1) {
        osdSurfacePush(&gstMenuMgr.stCanvas, 0);
        return true;
    }
    tagPAGE_NODE_S* pstPage = osdPageTop();
    const tagLAYOUT_S* pstLayout = osdLayoutFind(pstPage->enLayout);
    if (pstLayout == nullptr) {
        return false;
    }
    osdCanvasDraw(pstPage, *pstLayout);
    osdSurfacePush(&gstMenuMgr.stCanvas, 1);
    return true;
}

bool osdCanvasRender()
{
    if (gstMenuMgr.pstSurface == nullptr) {
        osdTrace("[%s:%d] osd not init\n", OSD_PLACE(OSD_MENU_RenderCanvas));
        return false;
    }
    (void)pthread_mutex_lock(&g_stMutex);
    const bool bDone = osdCanvasRedraw();
    (void)pthread_mutex_unlock(&g_stMutex);
    return bDone;
}

void osdCanvasUpdate(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach)
{
    const OSD_BOOL bOpen = gstPageMgr.s32PageCnt > 0 ? bShow : 0;
    (void)MPP_MENU_UpdateCanvasToOneChn(bOpen, pstAttach, &gstMenuMgr.stCanvas); // the service reports its own failures
}
