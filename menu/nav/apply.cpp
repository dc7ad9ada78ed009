#include "menu/nav/apply.h"

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/canvas.h"
#include "menu/core/change.h"
#include "menu/core/item.h"
#include "menu/core/language.h"
#include "menu/core/network.h"
#include "menu/core/value_bind.h"
#include "menu/core/words.h"
#include "menu/nav/stack.h"
#include "osd_menu.h"

static void osdApplyCommit(const tagPAGE_NODE_S* pstPage, tagITEM_NODE_S* pstItem, bool bUpdate)
{
    osdItemCommit(pstItem);
    const bool bLanguage = osdTextEqual(pstItem->acItemIndex, OSD_KEY_LANGUAGE);
    const bool bAlive = !bUpdate || osdItemSurvives(osdPageMark(pstPage), pstItem);
    if (bLanguage) {
        osdLanguageTranslateAll(); // without a language the old texts stay
    }
    if (bAlive) {
        osdValueReadSubItems(pstItem);
    }
}

void osdApplyChange(tagITEM_NODE_S* pstItem, bool bUpdate)
{
    const bool bChanged = osdItemChanged(pstItem);
    const tagPAGE_NODE_S* pstPage = osdPageTop();
    const bool bConfirmed = pstPage != nullptr && pstPage->bConfirmBtn == 1;
    if (bConfirmed && bChanged && osdNetworkIsAddressMode(pstItem)) {
        osdValueReadSubItems(pstItem); // they show the mode that waits for the confirm page
        return;
    }
    const bool bPasses = bConfirmed ? osdNetworkDnsIsFree(pstItem) : !osdItemWaits(pstItem);
    if (bPasses && bChanged) {
        osdApplyCommit(pstPage, pstItem, bUpdate);
    }
}

void osdApplyItem(tagITEM_NODE_S* pstItem)
{
    const bool bWaits = osdItemWaits(pstItem) && !(pstItem->enAttr == MSG_WITH_SUBITEM && osdNetworkIsDnsMode(pstItem));
    if (!bWaits && !osdNetworkHolds(pstItem)) {
        osdItemApply(pstItem);
    }
}

// Lists whose values the host may apply one by one.
static bool osdApplyServes(const tagPAGE_NODE_S* pstPage)
{
    const tagPAGE_LAYOUT_E enLayout = pstPage->enLayout;
    if (enLayout == PAGE_LAYOUT_ICON || enLayout == PAGE_LAYOUT_HORIZONTAL || enLayout == PAGE_LAYOUT_HORIZONTAL_KETH) {
        return false;
    }
    return pstPage->bConfirmBtn != 1 || osdTextEqual(pstPage->acPageName, OSD_PAGE_NETWORK);
}

void osdApplySelected()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr || !osdApplyServes(pstPage)) {
        return;
    }
    tagITEM_NODE_S* pstItem = osdStackSelected(pstPage, OSD_NAME(OSD_MENU_HandleSetParam));
    if (pstItem != nullptr && pstItem->bActive == 1) {
        osdApplyItem(pstItem);
        osdCanvasRender();
    }
}
