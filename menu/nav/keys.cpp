#include "menu/nav/keys.h"

#include "comm/log.h"
#include "menu/core/canvas.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/words.h"
#include "menu/nav/address.h"
#include "menu/nav/button.h"
#include "menu/nav/cursor.h"
#include "menu/nav/stack.h"

// Opens a root page; one that can't be parsed opens empty.
static void osdKeyOpenRoot(const char* pcPageName)
{
    osdPageParse(pcPageName, &gstPageMgr.astPage[0]);
    gstPageMgr.s32PageCnt = 1;
    osdCanvasRender();
}

void osdKeyOpen()
{
    if (gstPageMgr.s32PageCnt == 0) {
        osdKeyOpenRoot(OSD_PAGE_MAIN);
    }
}

void osdKeyMove(std::initializer_list<tagOSD_MENU_KEY_E> aenKey, bool bUpdate)
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr) {
        return;
    }
    for (const tagOSD_MENU_KEY_E enKey : aenKey) {
        osdCursorKey(pstPage, enKey, bUpdate);
    }
    osdCanvasRender();
}

static bool osdKeyDepthIsValid()
{
    if (gstPageMgr.s32PageCnt < 0) {
        osdTrace("Invalid parameter\n");
        return false;
    }
    return true;
}

bool osdKeyMenu()
{
    if (!osdKeyDepthIsValid()) {
        return false;
    }
    if (gstPageMgr.s32PageCnt == 0) {
        osdKeyOpen();
        return true;
    }
    const bool bDropped = gstPageMgr.s32PageCnt >= 2 && osdAddressDrop(&gstPageMgr);
    if (!bDropped) {
        osdStackStepBack();
    }
    osdCanvasRender();
    return true;
}

void osdKeyReturn()
{
    if (osdPageTop() != nullptr) {
        osdStackStepBack();
        osdCanvasRender();
    }
}

void osdKeyClose()
{
    while (osdPageTop() != nullptr) {
        if (gstPageMgr.s32PageCnt > 1) {
            osdButtonRestoreFactory(&gstPageMgr);
        }
        osdPagePop();
    }
    osdCanvasRender();
}

bool osdKeyAdvanced()
{
    if (!osdKeyDepthIsValid()) {
        return false;
    }
    if (osdPageTop() != nullptr) {
        osdStackStepBack();
    }
    while (osdPageTop() != nullptr) {
        osdPagePop();
    }
    osdKeyOpenRoot(OSD_PAGE_ADVANCED);
    return true;
}
