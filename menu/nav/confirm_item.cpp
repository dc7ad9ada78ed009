// Confirmed items: "Yes" hands the parent item itself to the host, and its button says how far that is.
#include "osd_page.h"
#include <unistd.h>

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/words.h"
#include "menu/nav/change.h"
#include "menu/nav/stack.h"
#include "platform/config_call.h"

static constexpr unsigned gs_u32ConfirmSeconds = 1; // so long the person sees what the button says

// Parent items whose button says "Finish" while the host works.
static constexpr const char* gs_apcFinishKey[] = {OSD_KEY_FACTORY_RESTORE, OSD_KEY_RESTART, OSD_KEY_LENS_CORRECTION};

struct tagCONFIRM_PARENT_S {
    tagITEM_NODE_S* pstItem; // null without a parent page or a selected item on it
    tagPAGE_MARK_S stMark;
};

static tagCONFIRM_PARENT_S osdConfirmParent(tagPAGE_NODE_S* pstPage)
{
    tagPAGE_NODE_S* pstParent = osdMenuGetPrevPage(pstPage);
    return {pstParent != nullptr ? osdMenuGetSelectedItem(pstParent) : nullptr, osdPageMark(pstParent)};
}

// Hands the parent item on and holds the key for a second; the item gets the text that its button shows then.
static void osdConfirmRun(const tagCONFIRM_PARENT_S& stParent, const char (&acText)[OSD_TEXT_LEN])
{
    const bool bAlive = stParent.pstItem != nullptr && osdItemSurvives(stParent.stMark, stParent.pstItem);
    (void)sleep(gs_u32ConfirmSeconds); // a signal may shorten it
    if (bAlive) {
        osdButtonSet(stParent.pstItem, acText);
    }
}

static void osdConfirmDrop(const tagCONFIRM_PARENT_S& stParent, const char (&acText)[OSD_TEXT_LEN])
{
    osdButtonSet(stParent.pstItem, acText);
    (void)osdMenuReleaseSinglePage(); // always 0
    (void)OSD_MENU_RenderCanvas();    // reports its own failures
}

int OSD_MENU_FactoryRestoreHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    const tagCONFIRM_PARENT_S stParent = osdConfirmParent(pstPage);
    if (stParent.pstItem == nullptr || !osdTextAmong(gs_apcFinishKey, stParent.pstItem->acItemIndex)) {
        return 1;
    }
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    char acConfirm[OSD_TEXT_LEN] = {};
    char acFinish[OSD_TEXT_LEN] = {};
    (void)osdCfgTranslate(acLanguage, OSD_WORD_CONFIRM, acConfirm); // without translations
    (void)osdCfgTranslate(acLanguage, OSD_WORD_FINISH, acFinish);   // the button is empty
    if (osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_YES)) {
        osdButtonSet(stParent.pstItem, acFinish);
        (void)osdMenuReleaseSinglePage(); // always 0
        (void)OSD_MENU_RenderCanvas();    // reports its own failures
        osdConfirmRun(stParent, acConfirm);
        (void)OSD_MENU_RenderCanvas();
    } else if (osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_NO)) {
        osdConfirmDrop(stParent, acConfirm);
    }
    return 0;
}

int OSD_MENU_IspHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    const tagCONFIRM_PARENT_S stParent = osdConfirmParent(pstPage);
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    char acConfirm[OSD_TEXT_LEN] = {};
    (void)osdCfgTranslate(acLanguage, OSD_WORD_CONFIRM, acConfirm); // without a translation the button is empty
    if (osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_YES)) {
        (void)osdMenuReleaseSinglePage(); // always 0; the screen shows the confirm page until all is done
        osdConfirmRun(stParent, acConfirm);
        (void)OSD_MENU_RefreshPage(); // always 0
        (void)OSD_MENU_RenderCanvas();
    } else if (osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_NO)) {
        osdConfirmDrop(stParent, acConfirm);
    }
    return 0;
}
