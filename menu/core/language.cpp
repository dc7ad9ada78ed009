#include "menu/core/language.h"

#include "comm/log.h"
#include "menu/core/item.h"
#include "menu/core/item_walk.h"
#include "menu/core/page.h"
#include "osd_page.h"
#include "platform/config_call.h"

// A text without translation keeps what the service made of it: no result is read here.
static void osdLanguageOptions(const char* pcLanguage, tagITEM_NODE_S* pstItem)
{
    const int32_t s32Cnt = osdItemOptionCnt(pstItem);
    for (int32_t i = 0; i < s32Cnt; i++) {
        osdCfgTranslate(pcLanguage, pstItem->acValueKey[i], pstItem->acValue[i]);
    }
}

void osdLanguageItem(const char* pcLanguage, tagITEM_NODE_S* pstItem)
{
    osdCfgTranslate(pcLanguage, pstItem->acItemIndex, pstItem->acItemName);
    if (pstItem->enCtx != NAME_BAR_VAL && pstItem->enCtx != NAME_VAL) {
        return;
    }
    if (osdItemWaits(pstItem)) {
        osdCfgTranslate(pcLanguage, pstItem->acMsgKey, pstItem->acMsg);
    } else if ((pstItem->enAttr == COMMON || pstItem->enAttr == CONFIRM_POP) && pstItem->enValType == OPTTXT) {
        osdLanguageOptions(pcLanguage, pstItem);
    }
}

static void osdLanguagePage(const char* pcLanguage, tagPAGE_NODE_S* pstPage)
{
    if (pstPage->bTitle == 1) {
        osdCfgTranslate(pcLanguage, pstPage->acTitleKey, pstPage->acTitle);
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        osdLanguageItem(pcLanguage, pstItem);
    }
}

bool osdLanguageTranslateAll()
{
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage)) {
        OSD_TRACE_FAILED(osdMenuReparseParamByLang);
        return false;
    }
    for (int32_t i = 0; i < osdPageCnt(&gstPageMgr); i++) {
        osdLanguagePage(acLanguage, &gstPageMgr.astPage[i]);
    }
    return true;
}
