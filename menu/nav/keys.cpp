// The keys of the remote control, but home. Each changes the stack or moves the cursor, and then draws once; the redraw
// reports its own failures.
#include <initializer_list>

#include "comm/log.h"
#include "menu/core/page_parse.h"
#include "menu/core/words.h"
#include "menu/nav/address.h"
#include "menu/nav/cursor.h"
#include "menu/nav/keys.h"
#include "menu/nav/stack.h"

int osdKeyRender()
{
    (void)OSD_MENU_RenderCanvas();
    return 0;
}

static int osdKeyMove(std::initializer_list<tagOSD_MENU_KEY_E> aenKey, OSD_BOOL bUpdate = 1)
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr) {
        return 0;
    }
    for (const tagOSD_MENU_KEY_E enKey : aenKey) {
        (void)osdMenuUpdateItemCursor(pstPage, enKey, bUpdate); // always 0
    }
    return osdKeyRender();
}

int OSD_MENU_HandleKeyUp() { return osdKeyMove({OSD_MENU_KEY_UP}); }
int OSD_MENU_HandleKeyDown() { return osdKeyMove({OSD_MENU_KEY_DOWN}); }
int OSD_MENU_HandleKeyLeft() { return osdKeyMove({OSD_MENU_KEY_LEFT}); }
int OSD_MENU_HandleKeyRight() { return osdKeyMove({OSD_MENU_KEY_RIGHT}); }
int OSD_MENU_HandleKeyUp_Left() { return osdKeyMove({OSD_MENU_KEY_UP, OSD_MENU_KEY_LEFT}); }
int OSD_MENU_HandleKeyUp_Right() { return osdKeyMove({OSD_MENU_KEY_UP, OSD_MENU_KEY_RIGHT}); }
int OSD_MENU_HandleKeyDown_Left() { return osdKeyMove({OSD_MENU_KEY_DOWN, OSD_MENU_KEY_LEFT}); }
int OSD_MENU_HandleKeyDown_Right() { return osdKeyMove({OSD_MENU_KEY_DOWN, OSD_MENU_KEY_RIGHT}); }

int osdMenuChangeItem(tagOSD_MENU_KEY_E enKey) { return osdKeyMove({enKey}, 0); }
int OSD_MENU_HandleKeyLeftUpdateItem() { return osdMenuChangeItem(OSD_MENU_KEY_LEFT); }
int OSD_MENU_HandleKeyRightUpdateItem() { return osdMenuChangeItem(OSD_MENU_KEY_RIGHT); }

static bool osdKeyDepthIsValid()
{
    if (gstPageMgr.s32PageCnt >= 0) {
        return true;
    }
    osdTrace("Invalid parameter\n");
    return false;
}

int OSD_MENU_HandleKeyMenu()
{
    if (!osdKeyDepthIsValid()) {
        return -1;
    }
    if (gstPageMgr.s32PageCnt == 0) {
        return OSD_MENU_OpenMenu();
    }
    const bool bDropped = gstPageMgr.s32PageCnt >= 2 && osdMenuExitEditableStatus(&gstPageMgr) == 1;
    if (!bDropped) {
        osdStackStepBack();
    }
    return osdKeyRender();
}

int OSD_MENU_ReturnMenu()
{
    if (osdXmlGetCurPage() == nullptr) {
        return 0;
    }
    osdStackStepBack();
    return osdKeyRender();
}

int OSD_MENU_CloseMenu()
{
    while (osdXmlGetCurPage() != nullptr) {
        if (gstPageMgr.s32PageCnt > 1) {
            (void)OSD_MENU_FactoryRestoreHandleMenuKey(&gstPageMgr); // always 0
        }
        (void)osdMenuReleaseSinglePage(); // always 0
    }
    return osdKeyRender();
}

int OSD_MENU_HandleKeyAdvancedMenu()
{
    if (!osdKeyDepthIsValid()) {
        return -1;
    }
    if (osdXmlGetCurPage() != nullptr) {
        osdStackStepBack();
    }
    while (osdXmlGetCurPage() != nullptr) {
        (void)osdMenuReleaseSinglePage(); // always 0
    }
    (void)osdPageParse(OSD_PAGE_ADVANCED, &gstPageMgr.astPage[0]); // a page that can't be parsed opens empty
    gstPageMgr.s32PageCnt = 1;
    return osdKeyRender();
}
