// The redraw of the top page and its push to the channels.
#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/core/layout.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/words.h"
#include "osd_comm.h"
#include "osd_page.h"
#include "platform/media_service.h"

pthread_mutex_t g_stMutex = PTHREAD_MUTEX_INITIALIZER;

static constexpr unsigned gs_u32FrameColor = 0xFFFFFFFF; // opaque white

// The results are dropped: a row or bitmap that fails doesn't keep the page from the channels.
static void osdPageDraw(tagPAGE_NODE_S* pstPage, const tagLAYOUT_S& stLayout)
{
    (void)OSD_COMM_DrawMenuBg(gstMenuMgr.pstSurface, *stLayout.pstRect);
    if (stLayout.s32Frame > 0) {
        (void)OSD_COMM_DrawRect(gstMenuMgr.pstSurface, *stLayout.pstRect, stLayout.s32Frame, gs_u32FrameColor);
    }
    (void)stLayout.pfnDrawPage(pstPage);
}

static int osdCanvasRedraw()
{
    if (gstPageMgr.s32PageCnt < 1) {
        (void)MPP_MENU_UpdateCanvasToAllChns(0, &gstMenuMgr.stCanvas); // the service reports its own failures
        return 0;
    }
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    const tagLAYOUT_S* pstLayout = pstPage != nullptr ? osdLayoutFind(pstPage->enLayout) : nullptr;
    if (pstLayout == nullptr) {
        return -1;
    }
    osdPageDraw(pstPage, *pstLayout);
    (void)MPP_MENU_UpdateCanvasToAllChns(1, &gstMenuMgr.stCanvas);
    return 0;
}

int OSD_MENU_RenderCanvas()
{
    if (gstMenuMgr.pstSurface == nullptr) {
        osdTrace("[%s:%d] osd not init\n", OSD_PLACE);
        return -1;
    }
    (void)pthread_mutex_lock(&g_stMutex);
    const int s32Ret = osdCanvasRedraw();
    (void)pthread_mutex_unlock(&g_stMutex);
    return s32Ret;
}

int OSD_MENU_UpdateCanvas(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach)
{
    const OSD_BOOL bOpen = OSD_MENU_GetMenuStatus();
    (void)MPP_MENU_UpdateCanvasToOneChn(bOpen == 1 ? bShow : 0, pstAttach, &gstMenuMgr.stCanvas);
    return 0;
}

int OSD_MENU_OpenMenu()
{
    if (gstPageMgr.s32PageCnt != 0) {
        return 0;
    }
    (void)osdPageParse(OSD_PAGE_MAIN, &gstPageMgr.astPage[0]); // a page that can't be parsed opens empty
    gstPageMgr.s32PageCnt++;
    (void)OSD_MENU_RenderCanvas();
    return 0;
}

OSD_BOOL OSD_MENU_GetMenuStatus() { return gstPageMgr.s32PageCnt > 0 ? 1 : 0; }

static OSD_BOOL osdPageHasSubPage(tagPAGE_NODE_S* pstPage)
{
    const tagITEM_NODE_S* pstItem = osdMenuGetSelectedItem(pstPage);
    return pstItem != nullptr && pstItem->enAttr == SUBPAGE ? 1 : 0;
}

OSD_BOOL OSD_Menu_HasSubPage()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    return pstPage == nullptr ? 1 : osdPageHasSubPage(pstPage);
}

OSD_BOOL OSD_MENU_HasSubPageWithOutIcon()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    return pstPage == nullptr || pstPage->enLayout == PAGE_LAYOUT_ICON ? 0 : osdPageHasSubPage(pstPage);
}
