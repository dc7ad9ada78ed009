#include "menu/nav/stack.h"

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/page_parse.h"
#include "menu/core/words.h"
#include "platform/config_call.h"

// Parent items whose button gets the translated word back.
static constexpr const char* gs_apcRestoredKey[] = {OSD_KEY_RESTART, OSD_KEY_RESTORE_IMG, OSD_KEY_RESTORE_EXP,
                                                    OSD_KEY_RESTORE_WB};

bool osdStackIsFull(const char* pcPageName)
{
    if (gstPageMgr.s32PageCnt < OSD_PAGE_MAX) {
        return false;
    }
    OSD_LOG(OSD_LOG_LEVEL_ERR, "%s not opened: %d pages are open already\n", pcPageName, gstPageMgr.s32PageCnt);
    return true;
}

int osdStackPush(const char* pcPageName)
{
    tagPAGE_NODE_S* pstPage = &gstPageMgr.astPage[gstPageMgr.s32PageCnt];
    gstPageMgr.s32PageCnt++;
    if (osdPageParse(pcPageName, pstPage) != 0) {
        osdTrace("%s %d, ParaseXml failed\n", OSD_PLACE);
        return -1;
    }
    return 0;
}

int osdMenuNextPage(char* pcPageName)
{
    if (gstPageMgr.s32PageCnt < 1 || osdStackIsFull(pcPageName)) {
        return -1;
    }
    osdTrace("%s %d, pcPageName = %s\n", OSD_PLACE, pcPageName);
    return osdStackPush(pcPageName);
}

int osdMenuPrevPage() { return gstPageMgr.s32PageCnt < 1 ? -1 : osdMenuReleaseSinglePage(); }

tagPAGE_NODE_S* osdMenuGetPrevPage(tagPAGE_NODE_S* pstPage)
{
    for (int32_t i = 1; i < osdPageCnt(&gstPageMgr); i++) {
        if (pstPage == &gstPageMgr.astPage[i]) {
            return &gstPageMgr.astPage[i - 1];
        }
    }
    return nullptr;
}

tagITEM_NODE_S* osdStackParentItem(tagPAGE_MGR_S* pstMgr)
{
    const int32_t s32Cnt = osdPageCnt(pstMgr);
    return s32Cnt >= 2 ? osdMenuGetSelectedItem(&pstMgr->astPage[s32Cnt - 2]) : nullptr;
}

tagITEM_NODE_S* osdStackSelected(tagPAGE_NODE_S* pstPage)
{
    tagITEM_NODE_S* pstItem = osdMenuGetSelectedItem(pstPage);
    if (pstItem == nullptr) {
        osdTrace("%s don't find selected item\n", __func__);
    }
    return pstItem;
}

char (*osdButtonText(tagITEM_NODE_S* pstItem))[OSD_TEXT_LEN]
{
    const bool bInRange = pstItem->s32CurIdx >= 0 && pstItem->s32CurIdx < OSD_OPTION_MAX;
    return bInRange ? &pstItem->acValue[pstItem->s32CurIdx] : nullptr;
}

void osdButtonSet(tagITEM_NODE_S* pstItem, const char (&acText)[OSD_TEXT_LEN])
{
    char(*pacText)[OSD_TEXT_LEN] = pstItem != nullptr ? osdButtonText(pstItem) : nullptr;
    if (pacText != nullptr) {
        osdTextSetField(*pacText, acText);
    }
}

int OSD_MENU_FactoryRestoreHandleMenuKey(tagPAGE_MGR_S* pstMgr)
{
    tagITEM_NODE_S* pstItem = osdStackParentItem(pstMgr);
    if (pstItem != nullptr && osdTextEqual(pstItem->acItemIndex, OSD_KEY_FACTORY_RESTORE)) {
        char(*pacText)[OSD_TEXT_LEN] = osdButtonText(pstItem);
        if (pacText != nullptr) {
            osdTextPatch(*pacText, OSD_WORD_CONFIRM);
        }
    }
    return 0;
}

int OSD_MENU_RestartHandleMenuKey(tagPAGE_MGR_S* pstMgr)
{
    tagITEM_NODE_S* pstItem = osdStackParentItem(pstMgr);
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    if (pstItem != nullptr && osdTextAmong(gs_apcRestoredKey, pstItem->acItemIndex)) {
        char acConfirm[OSD_TEXT_LEN] = {};
        (void)osdCfgTranslate(acLanguage, OSD_WORD_CONFIRM, acConfirm); // without a translation the button is empty
        osdButtonSet(pstItem, acConfirm);
    }
    return 0;
}

void osdStackStepBack()
{
    if (gstPageMgr.s32PageCnt >= 2) {
        (void)OSD_MENU_FactoryRestoreHandleMenuKey(&gstPageMgr); // always 0
        (void)OSD_MENU_RestartHandleMenuKey(&gstPageMgr);        // without a language the button keeps its text
    }
    (void)osdMenuReleaseSinglePage(); // always 0
}
