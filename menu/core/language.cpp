
#include "osd_page.h"
#include <algorithm>

#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "platform/config_call.h"

// A text without translation keeps what the service made of it: the results are not read.
static void osdLanguageOptions(const char* pcLanguage, tagITEM_NODE_S* pstItem)
{
    const int32_t s32Cnt = std::min<int32_t>(pstItem->s32ValCnt, OSD_OPTION_MAX);
    for (int32_t i = 0; i < s32Cnt; i++) {
        (void)osdCfgTranslate(pcLanguage, pstItem->acValueKey[i], pstItem->acValue[i]);
    }
}

int osdMenuReplaceItemLang(char* pcLanguage, tagITEM_NODE_S* pstItemNode)
{
    (void)osdCfgTranslate(pcLanguage, pstItemNode->acItemIndex, pstItemNode->acItemName);
    if (pstItemNode->enCtx != NAME_BAR_VAL && pstItemNode->enCtx != NAME_VAL) {
        return 0;
    }
    const tagITEM_ATTR_E enAttr = pstItemNode->enAttr;
    if (enAttr == KEY_WITH_MSG || enAttr == MSG_WITH_SUBITEM) {
        (void)osdCfgTranslate(pcLanguage, pstItemNode->acMsgKey, pstItemNode->acMsg);
    } else if ((enAttr == COMMON || enAttr == CONFIRM_POP) && pstItemNode->enValType == OPTTXT) {
        osdLanguageOptions(pcLanguage, pstItemNode);
    }
    return 0;
}

static void osdLanguagePage(char* pcLanguage, tagPAGE_NODE_S* pstPage)
{
    if (pstPage->bTitle == 1) {
        (void)osdCfgTranslate(pcLanguage, pstPage->acTitleKey, pstPage->acTitle);
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        (void)osdMenuReplaceItemLang(pcLanguage, pstItem); // always 0
    }
}

int osdMenuReparseParamByLang()
{
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    for (int32_t i = 0; i < osdPageCnt(&gstPageMgr); i++) {
        osdLanguagePage(acLanguage, &gstPageMgr.astPage[i]);
    }
    return 0;
}
