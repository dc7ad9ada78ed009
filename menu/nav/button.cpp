#include "menu/nav/button.h"

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/item.h"
#include "menu/core/page.h"
#include "menu/core/words.h"
#include "osd_page.h"
#include "platform/config_call.h"

// Parent items whose button gets the translated word back.
static constexpr const char* c_apcRestoredKey[] = {OSD_KEY_RESTART, OSD_KEY_RESTORE_IMG, OSD_KEY_RESTORE_EXP,
                                                   OSD_KEY_RESTORE_WB};

static bool osdButtonHasText(const tagITEM_NODE_S* pstItem)
{
    return pstItem != nullptr && pstItem->s32CurIdx >= 0 && pstItem->s32CurIdx < OSD_OPTION_MAX;
}

const OSD_TEXT& osdButtonText(const tagITEM_NODE_S* pstItem) { return osdItemOption(pstItem, pstItem->s32CurIdx); }

void osdButtonSet(tagITEM_NODE_S* pstItem, const OSD_TEXT& acText)
{
    if (osdButtonHasText(pstItem)) {
        osdTextSetField(pstItem->acValue[pstItem->s32CurIdx], acText);
    }
}

// The selected item of the page below the top page, or null.
static tagITEM_NODE_S* osdButtonBelow(tagPAGE_MGR_S* pstMgr)
{
    const int32_t s32Cnt = osdPageCnt(pstMgr);
    return s32Cnt >= 2 ? osdPageSelected(&pstMgr->astPage[s32Cnt - 2]) : nullptr;
}

void osdButtonRestoreFactory(tagPAGE_MGR_S* pstMgr)
{
    tagITEM_NODE_S* pstItem = osdButtonBelow(pstMgr);
    if (osdButtonHasText(pstItem) && osdTextEqual(pstItem->acItemIndex, OSD_KEY_FACTORY_RESTORE)) {
        osdTextPatch(pstItem->acValue[pstItem->s32CurIdx], OSD_WORD_CONFIRM);
    }
}

bool osdButtonRestore(tagPAGE_MGR_S* pstMgr)
{
    tagITEM_NODE_S* pstItem = osdButtonBelow(pstMgr);
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage)) {
        OSD_TRACE_FAILED(OSD_MENU_RestartHandleMenuKey);
        return false;
    }
    if (pstItem != nullptr && osdTextAmong(c_apcRestoredKey, pstItem->acItemIndex)) {
        OSD_TEXT acConfirm = "";
        osdCfgTranslate(acLanguage, OSD_WORD_CONFIRM, acConfirm); // without a translation the button is empty
        osdButtonSet(pstItem, acConfirm);
    }
    return true;
}
