// The navigation's C functions: each hands over to the C++ behind it.
#include "menu/core/change.h"
#include "menu/core/network.h"
#include "menu/core/words.h"
#include "menu/nav/address.h"
#include "menu/nav/apply.h"
#include "menu/nav/button.h"
#include "menu/nav/confirm_page.h"
#include "menu/nav/cursor.h"
#include "menu/nav/home_key.h"
#include "menu/nav/keys.h"
#include "menu/nav/list_cursor.h"
#include "menu/nav/paged_cursor.h"
#include "menu/nav/stack.h"
#include "menu/nav/tally.h"
#include "osd_page.h"

int OSD_MENU_OpenMenu()
{
    osdKeyOpen();
    return 0;
}

int OSD_MENU_HandleKeyMenu() { return osdKeyMenu() ? 0 : -1; }

int OSD_MENU_HandleKeyAdvancedMenu() { return osdKeyAdvanced() ? 0 : -1; }

int OSD_MENU_ReturnMenu()
{
    osdKeyReturn();
    return 0;
}

int OSD_MENU_CloseMenu()
{
    osdKeyClose();
    return 0;
}

static int osdDirection(std::initializer_list<tagOSD_MENU_KEY_E> aenKey, bool bUpdate = true)
{
    osdKeyMove(aenKey, bUpdate);
    return 0;
}

int OSD_MENU_HandleKeyUp() { return osdDirection({OSD_MENU_KEY_UP}); }
int OSD_MENU_HandleKeyDown() { return osdDirection({OSD_MENU_KEY_DOWN}); }
int OSD_MENU_HandleKeyLeft() { return osdDirection({OSD_MENU_KEY_LEFT}); }
int OSD_MENU_HandleKeyRight() { return osdDirection({OSD_MENU_KEY_RIGHT}); }
int OSD_MENU_HandleKeyUp_Left() { return osdDirection({OSD_MENU_KEY_UP, OSD_MENU_KEY_LEFT}); }
int OSD_MENU_HandleKeyUp_Right() { return osdDirection({OSD_MENU_KEY_UP, OSD_MENU_KEY_RIGHT}); }
int OSD_MENU_HandleKeyDown_Left() { return osdDirection({OSD_MENU_KEY_DOWN, OSD_MENU_KEY_LEFT}); }
int OSD_MENU_HandleKeyDown_Right() { return osdDirection({OSD_MENU_KEY_DOWN, OSD_MENU_KEY_RIGHT}); }

int osdMenuChangeItem(tagOSD_MENU_KEY_E enKey) { return osdDirection({enKey}, false); }
int OSD_MENU_HandleKeyLeftUpdateItem() { return osdMenuChangeItem(OSD_MENU_KEY_LEFT); }
int OSD_MENU_HandleKeyRightUpdateItem() { return osdMenuChangeItem(OSD_MENU_KEY_RIGHT); }

int OSD_MENU_HandleKeyHome() { return osdKeyHome() ? 0 : -1; }

int OSD_MENU_HandleSetParam()
{
    osdApplySelected();
    return 0;
}

int osdMenuNextPage(char* pcPageName) { return osdStackNext(pcPageName) ? 0 : -1; }

int osdMenuPrevPage() { return osdStackBack() ? 0 : -1; }

OSD_BOOL osdMenuParamChange(tagITEM_NODE_S* pstItemNode) { return osdItemChanged(pstItemNode) ? 1 : 0; }

int osdMenuInvokeBusinessFuncIfNeed(tagITEM_NODE_S* pstItemNode, OSD_BOOL bUpdate)
{
    osdApplyChange(pstItemNode, bUpdate != 0);
    return 0;
}

int osdMenuInvokeBusinessFunc(tagITEM_NODE_S* pstItemNode)
{
    osdApplyItem(pstItemNode);
    return 0;
}

int osdMenuUpdateParam(list_head* pstList, OSD_BOOL bUpdate) { return osdCursorApply(pstList, bUpdate != 0) ? 0 : -1; }

int osdMenuUpdateStatusWithCustomColor(tagPAGE_NODE_S* pstPage, list_head* pstList, OSD_BOOL bUpdate)
{
    osdTallyUpdate(pstPage, pstList, bUpdate != 0);
    return 0;
}

OSD_BOOL osdXmlIsStaticOfNetMode(tagITEM_NODE_S* pstItemNode) { return osdNetworkHolds(pstItemNode) ? 1 : 0; }

int osdMenuUpdateItemCursor(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey, OSD_BOOL bUpdate)
{
    osdCursorKey(pstPage, enKey, bUpdate != 0);
    return 0;
}

int osdMenuUpdateVerticalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    return osdCursorVertical(pstList, enKey);
}

int osdMenuUpdateHorizontalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    return osdCursorHorizontal(pstList, enKey);
}

int osdMenuUpdateVerticalItemCursorWithKETH(list_head* pstList, tagOSD_MENU_KEY_E enKey)
{
    return osdCursorPaged(pstList, enKey);
}

OSD_BOOL osdMenuIsItemEditing() { return osdAddressIsEdited() ? 1 : 0; }

int osdMenuExpandNetworkData(char* pcData)
{
    osdAddressExpand(pcData);
    return 0;
}

int osdMenuFoldNetworkData(char* pcData)
{
    osdAddressFold(pcData);
    return 0;
}

int osdMenuCalcInfoBeforeCursor(tagITEM_NODE_S* pstItemNode, int* ps32Digits, int* ps32Dots)
{
    const tagADDRESS_COUNT_S stCount = osdAddressCount(pstItemNode);
    *ps32Digits = stCount.s32Digits;
    *ps32Dots = stCount.s32Dots;
    return 0;
}

int osdMenuEditableItemKeyEvent(tagOSD_MENU_KEY_E enKey) { return osdAddressKey(enKey) ? 0 : -1; }

OSD_BOOL osdMenuExitEditableStatus(tagPAGE_MGR_S* pstMgr) { return osdAddressDrop(pstMgr) ? 1 : 0; }

int OSD_MENU_FactoryRestoreHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmFinish(pstItemNode, pstPage);
}

int OSD_MENU_NetworkHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmPage(pstItemNode, pstPage, OSD_PAGE_NETWORK);
}

int OSD_MENU_FormatHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmPage(pstItemNode, pstPage, OSD_PAGE_FORMAT);
}

int OSD_MENU_RotateHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmPage(pstItemNode, pstPage, OSD_PAGE_ROTATE);
}

int OSD_MENU_PipHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmPage(pstItemNode, pstPage, OSD_PAGE_PIP);
}

int OSD_MENU_VideoHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmPage(pstItemNode, pstPage, OSD_PAGE_VIDEO);
}

int OSD_MENU_IspHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmReread(pstItemNode, pstPage);
}

int OSD_MENU_NetworkItemExec(tagITEM_NODE_S* pstItemNode)
{
    osdNetworkApplySubItems(osdPageMark(osdPageTop()), pstItemNode);
    return 0;
}

int OSD_MENU_FactoryRestoreHandleMenuKey(tagPAGE_MGR_S* pstMgr)
{
    osdButtonRestoreFactory(pstMgr);
    return 0;
}

int OSD_MENU_RestartHandleMenuKey(tagPAGE_MGR_S* pstMgr) { return osdButtonRestore(pstMgr) ? 0 : -1; }
