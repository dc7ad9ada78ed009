#include "menu/nav/confirm_item.h"

#include <unistd.h>

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/canvas.h"
#include "menu/core/change.h"
#include "menu/core/flat_list.h"
#include "menu/core/refresh.h"
#include "menu/core/words.h"
#include "menu/nav/button.h"
#include "osd_page.h"
#include "platform/config_call.h"

static constexpr unsigned c_u32ConfirmSeconds = 1; // how long the button's text is seen

// Parent items whose button says "Finish" while the host works.
static constexpr const char* c_apcFinishKey[] = {OSD_KEY_FACTORY_RESTORE, OSD_KEY_RESTART, OSD_KEY_LENS_CORRECTION};

struct tagCONFIRM_S {
    tagITEM_NODE_S* pstItem; // the parent item; null without a parent page or a selected item on it
    tagPAGE_MARK_S stMark;   // of the parent page
    bool bFinish;            // the button says "Finish" while the host works; else the page is read again afterwards
    const char* pcFunc;
};

static tagCONFIRM_S osdConfirmOf(const tagPAGE_NODE_S* pstPage, bool bFinish, const char* pcFunc)
{
    tagPAGE_NODE_S* pstParent = osdPageBelow(pstPage);
    return {pstParent != nullptr ? osdPageSelected(pstParent) : nullptr, osdPageMark(pstParent), bFinish, pcFunc};
}

// Hands the parent item on and holds the key for a second; the item gets the text that its button shows then.
static void osdConfirmRun(const tagCONFIRM_S& stConfirm, const OSD_TEXT& acText)
{
    const bool bAlive = stConfirm.pstItem != nullptr && osdItemSurvives(stConfirm.stMark, stConfirm.pstItem);
    (void)sleep(c_u32ConfirmSeconds); // a signal may shorten it
    if (bAlive) {
        osdButtonSet(stConfirm.pstItem, acText);
    }
}

static void osdConfirmYes(const tagCONFIRM_S& stConfirm, const OSD_TEXT& acConfirm, const OSD_TEXT& acFinish)
{
    if (stConfirm.bFinish) {
        osdButtonSet(stConfirm.pstItem, acFinish);
        osdPagePop();
        osdCanvasRender();
        osdConfirmRun(stConfirm, acConfirm);
    } else {
        osdPagePop(); // the screen shows the confirm page until all is done
        osdConfirmRun(stConfirm, acConfirm);
        osdRefreshPage();
    }
    osdCanvasRender();
}

static tagANSWER_E osdConfirmTake(const tagCONFIRM_S& stConfirm, const tagITEM_NODE_S* pstAnswer)
{
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage)) {
        osdTrace("%s %d failed\n", stConfirm.pcFunc, __LINE__);
        return ANSWER_FAILED;
    }
    OSD_TEXT acConfirm = ""; // without translations the button is empty
    OSD_TEXT acFinish = "";
    osdCfgTranslate(acLanguage, OSD_WORD_CONFIRM, acConfirm);
    if (stConfirm.bFinish) {
        osdCfgTranslate(acLanguage, OSD_WORD_FINISH, acFinish);
    }
    if (osdTextEqual(pstAnswer->acItemIndex, OSD_KEY_YES)) {
        osdConfirmYes(stConfirm, acConfirm, acFinish);
    } else if (osdTextEqual(pstAnswer->acItemIndex, OSD_KEY_NO)) {
        osdButtonSet(stConfirm.pstItem, acConfirm);
        osdPagePop();
        osdCanvasRender();
    }
    return ANSWER_DONE;
}

tagANSWER_E osdConfirmFinish(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage)
{
    const tagCONFIRM_S stConfirm = osdConfirmOf(pstPage, true, OSD_NAME(OSD_MENU_FactoryRestoreHandleHomeKey));
    const bool bMine = stConfirm.pstItem != nullptr && osdTextAmong(c_apcFinishKey, stConfirm.pstItem->acItemIndex);
    return bMine ? osdConfirmTake(stConfirm, pstAnswer) : ANSWER_OTHERS;
}

tagANSWER_E osdConfirmReread(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage)
{
    return osdConfirmTake(osdConfirmOf(pstPage, false, OSD_NAME(OSD_MENU_IspHandleHomeKey)), pstAnswer);
}
