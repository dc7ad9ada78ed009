#include "menu/nav/stack.h"

#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/core/page_parse.h"
#include "menu/nav/button.h"
#include "osd_page.h"

bool osdStackIsFull(const char* pcPageName, const char* pcFunc)
{
    if (gstPageMgr.s32PageCnt < OSD_PAGE_MAX) {
        return false;
    }
    UTIL_LOG_Print(OSD_LOG_LEVEL_ERR, osdLogTag(pcFunc, __LINE__).acTag, "%s not opened: %d pages are open already\n",
                   pcPageName, gstPageMgr.s32PageCnt);
    return true;
}

bool osdStackPush(const char* pcPageName, const char* pcFunc)
{
    tagPAGE_NODE_S* pstPage = &gstPageMgr.astPage[gstPageMgr.s32PageCnt];
    gstPageMgr.s32PageCnt++;
    if (!osdPageParse(pcPageName, pstPage)) {
        osdTrace("%s %d, ParaseXml failed\n", pcFunc, __LINE__);
        return false;
    }
    return true;
}

bool osdStackNext(const char* pcPageName)
{
    const char* pcFunc = OSD_NAME(osdMenuNextPage);
    if (gstPageMgr.s32PageCnt < 1 || osdStackIsFull(pcPageName, pcFunc)) {
        return false;
    }
    osdTrace("%s %d, pcPageName = %s\n", pcFunc, __LINE__, pcPageName);
    return osdStackPush(pcPageName, pcFunc);
}

bool osdStackBack()
{
    const bool bOpen = gstPageMgr.s32PageCnt >= 1;
    osdPagePop();
    return bOpen;
}

tagITEM_NODE_S* osdStackSelected(tagPAGE_NODE_S* pstPage, const char* pcFunc)
{
    tagITEM_NODE_S* pstItem = osdPageSelected(pstPage);
    if (pstItem == nullptr) {
        osdTrace("%s don't find selected item\n", pcFunc);
    }
    return pstItem;
}

void osdStackStepBack()
{
    if (gstPageMgr.s32PageCnt >= 2) {
        osdButtonRestoreFactory(&gstPageMgr);
        osdButtonRestore(&gstPageMgr); // without a language the button keeps its text
    }
    osdPagePop();
}
