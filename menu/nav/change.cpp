#include "menu/nav/change.h"
#include "osd_page.h"

#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/value_bind.h"
#include "menu/core/words.h"
#include "menu/nav/cursor.h"
#include "menu/nav/stack.h"
#include "platform/config_call.h"

OSD_BOOL osdMenuParamChange(tagITEM_NODE_S* pstItemNode)
{
    if (pstItemNode->enAttr == CONST_TXT) {
        return 0;
    }
    if (pstItemNode->enValType == NUMERICAL) {
        return pstItemNode->s32Cur != pstItemNode->s32Saved ? 1 : 0;
    }
    return pstItemNode->enValType == OPTTXT && pstItemNode->s32CurIdx != pstItemNode->s32SavedIdx ? 1 : 0;
}

void osdItemCommit(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enValType == NUMERICAL) {
        pstItem->s32Saved = pstItem->s32Cur;
    } else if (pstItem->enValType == OPTTXT) {
        pstItem->s32SavedIdx = pstItem->s32CurIdx;
    }
}

void osdItemRollBack(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enValType == NUMERICAL) {
        pstItem->s32Cur = pstItem->s32Saved;
    } else if (pstItem->enValType == OPTTXT) {
        pstItem->s32CurIdx = pstItem->s32SavedIdx;
    }
}

void osdItemApply(tagITEM_NODE_S* pstItem)
{
    if (gstMenuMgr.pfnBusinessFunc != nullptr) {
        (void)gstMenuMgr.pfnBusinessFunc(pstItem); // a value that the host refuses stays until the host refreshes it
    }
}

bool osdItemSurvives(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdItemApply(pstItem);
    return osdPageHolds(stMark);
}

int osdMenuUpdateParam(list_head* pstList, OSD_BOOL bUpdate)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    return pstItem != nullptr ? osdMenuInvokeBusinessFuncIfNeed(pstItem, bUpdate) : -1;
}

// Whether the top page lets a change of this item through at once.
static bool osdChangePasses(const tagPAGE_NODE_S* pstPage, tagITEM_NODE_S* pstItem)
{
    if (pstPage == nullptr || pstPage->bConfirmBtn != 1) {
        return !osdItemWaits(pstItem);
    }
    return osdTextEqual(pstItem->acItemIndex, OSD_KEY_DNS_MODE) && osdXmlIsStaticOfNetMode(pstItem) == 0;
}

static void osdChangeCommit(const tagPAGE_NODE_S* pstPage, tagITEM_NODE_S* pstItem, OSD_BOOL bUpdate)
{
    osdItemCommit(pstItem);
    const bool bLanguage = osdTextEqual(pstItem->acItemIndex, OSD_KEY_LANGUAGE);
    const bool bAlive = bUpdate == 0 || osdItemSurvives(osdPageMark(pstPage), pstItem);
    if (bLanguage) {
        (void)osdMenuReparseParamByLang(); // without a language the old texts stay
    }
    if (bAlive) {
        (void)osdMenuUpdateSubItems(pstItem); // -1 for an item that has none
    }
}

int osdMenuInvokeBusinessFuncIfNeed(tagITEM_NODE_S* pstItemNode, OSD_BOOL bUpdate)
{
    const bool bChanged = osdMenuParamChange(pstItemNode) == 1;
    const tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    const bool bConfirmed = pstPage != nullptr && pstPage->bConfirmBtn == 1;
    if (bConfirmed && bChanged && osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_IP_MODE)) {
        (void)osdMenuUpdateSubItems(pstItemNode); // they show the mode that waits for the confirm page
        return 0;
    }
    if (osdChangePasses(pstPage, pstItemNode) && bChanged) {
        osdChangeCommit(pstPage, pstItemNode, bUpdate);
    }
    return 0;
}

int osdMenuInvokeBusinessFunc(tagITEM_NODE_S* pstItemNode)
{
    const bool bDns = osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_DNS_MODE);
    const bool bWaits = pstItemNode->enAttr == KEY_WITH_MSG || (pstItemNode->enAttr == MSG_WITH_SUBITEM && !bDns);
    if (!bWaits && osdXmlIsStaticOfNetMode(pstItemNode) == 0) {
        osdItemApply(pstItemNode);
    }
    return 0;
}

// Lists whose values the host may apply one by one.
static bool osdPageAppliesItems(const tagPAGE_NODE_S* pstPage)
{
    const tagPAGE_LAYOUT_E enLayout = pstPage->enLayout;
    if (enLayout == PAGE_LAYOUT_ICON || enLayout == PAGE_LAYOUT_HORIZONTAL || enLayout == PAGE_LAYOUT_HORIZONTAL_KETH) {
        return false;
    }
    return pstPage->bConfirmBtn != 1 || osdTextEqual(pstPage->acPageName, OSD_PAGE_NETWORK);
}

int OSD_MENU_HandleSetParam()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr || !osdPageAppliesItems(pstPage)) {
        return 0;
    }
    tagITEM_NODE_S* pstItem = osdStackSelected(pstPage);
    if (pstItem != nullptr && pstItem->bActive == 1) {
        (void)osdMenuInvokeBusinessFunc(pstItem); // always 0
        (void)OSD_MENU_RenderCanvas();            // reports its own failures
    }
    return 0;
}

OSD_BOOL osdXmlIsStaticOfNetMode(tagITEM_NODE_S* pstItemNode)
{
    if (!osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_DNS_MODE)) {
        return 0;
    }
    char acLanguage[OSD_TEXT_LEN];
    char acStatic[OSD_TEXT_LEN] = {};
    (void)osdCfgLanguage(acLanguage);                                // the text counts, whatever
    (void)osdCfgTranslate(acLanguage, OSD_WORD_STATIC_IP, acStatic); // the service says of it
    const tagITEM_NODE_S* pstMode = osdFlatPrev(pstItemNode);
    if (pstMode == nullptr || !osdTextEqual(pstMode->acItemIndex, OSD_KEY_IP_MODE)) {
        return 0;
    }
    return osdTextFieldEqual(osdItemOption(pstMode, pstMode->s32SavedIdx), acStatic) ? 1 : 0;
}
