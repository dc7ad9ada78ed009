#include "menu/nav/home_key.h"

#include <cstring>

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/canvas.h"
#include "menu/core/change.h"
#include "menu/core/flat_list.h"
#include "menu/core/network.h"
#include "menu/core/words.h"
#include "menu/nav/address.h"
#include "menu/nav/button.h"
#include "menu/nav/confirm_page.h"
#include "menu/nav/stack.h"
#include "platform/config_call.h"

struct tagHOME_S {
    tagITEM_NODE_S* pstItem; // selected on the top page
    tagPAGE_NODE_S* pstPage; // the top page
    const OSD_TEXT& acBusy;
};

// Opens a page and draws it; false when it can't be read.
static bool osdHomeOpen(const char* pcPageName)
{
    if (!osdStackPush(pcPageName, OSD_NAME(OSD_MENU_HandleKeyHome))) {
        return false;
    }
    osdCanvasRender();
    return true;
}

static bool osdHomeSubPage(const tagHOME_S& stHome)
{
    const char* pcPageName = stHome.pstItem->acSubPage;
    if (osdStackIsFull(pcPageName, OSD_NAME(OSD_MENU_HandleKeyHome))) {
        return false;
    }
    osdTrace("%s %d, pstActiveItem->acSubPage = %s\n", OSD_PLACE(OSD_MENU_HandleKeyHome), pcPageName);
    return osdHomeOpen(pcPageName);
}

static bool osdHomeConfirmPage(const tagHOME_S& stHome)
{
    const char* pcPageName = stHome.pstItem->acConfirmPage;
    if (osdStackIsFull(pcPageName, OSD_NAME(OSD_MENU_HandleKeyHome))) {
        return false;
    }
    if (stHome.pstItem->enAttr == CONFIRM_POP) {
        osdButtonSet(stHome.pstItem, stHome.acBusy);
    }
    osdCanvasRender(); // the button is busy while the page is read
    osdTrace("%s %d, pstActiveItem->acConfirmPage = %s\n", OSD_PLACE(OSD_MENU_HandleKeyHome), pcPageName);
    return osdHomeOpen(pcPageName);
}

static void osdHomeAnswer(const tagHOME_S& stHome)
{
    if (osdConfirmFinish(stHome.pstItem, stHome.pstPage) == ANSWER_OTHERS &&
        osdConfirmBelow(stHome.pstItem, stHome.pstPage, false) == ANSWER_OTHERS) {
        osdConfirmReread(stHome.pstItem, stHome.pstPage); // reports its own failure
    }
}

static void osdHomeRestart(const tagHOME_S& stHome)
{
    osdConfirmBelow(stHome.pstItem, stHome.pstPage, true); // above another page nothing happens
}

static void osdHomeButton(const tagHOME_S& stHome)
{
    tagITEM_NODE_S* pstItem = stHome.pstItem;
    if (pstItem->enPicType == MAINTYPE || osdTextEqual(pstItem->acItemIndex, OSD_KEY_BACK)) {
        osdItemApply(pstItem);
        return;
    }
    OSD_TEXT acOwn;
    osdTextSetField(acOwn, osdButtonText(pstItem));
    osdButtonSet(pstItem, stHome.acBusy);
    osdCanvasRender();
    if (osdItemSurvives(osdPageMark(stHome.pstPage), pstItem)) {
        osdButtonSet(pstItem, acOwn);
    }
    osdCanvasRender();
}

static void osdHomeWaiting(const tagHOME_S& stHome)
{
    if (osdNetworkHolds(stHome.pstItem) || !osdItemChanged(stHome.pstItem)) {
        return; // a value that is held keeps waiting, with its message line
    }
    osdItemCommit(stHome.pstItem);
    stHome.pstPage->bKeyMsg = 0;
    osdItemApply(stHome.pstItem);
    osdCanvasRender();
}

static void osdHomeAddress(const tagHOME_S& stHome)
{
    osdAddressToggle(stHome.pstItem);
    osdCanvasRender();
}

static void osdHomeNothing(const tagHOME_S& /*stHome*/) { osdCanvasRender(); }

template <tagITEM_ATTR_E... aenAttr>
static bool osdHomeIs(const tagHOME_S& stHome)
{
    return ((stHome.pstItem->enAttr == aenAttr) || ...);
}

static bool osdHomeOnConfirmPage(const tagHOME_S& stHome)
{
    return strstr(stHome.pstPage->acPageName, OSD_PAGE_PART_CONFIRM) != nullptr;
}

static bool osdHomeOnRestartPage(const tagHOME_S& stHome)
{
    return osdTextEqual(stHome.pstPage->acPageName, OSD_PAGE_RESTART);
}

static bool osdHomeAlways(const tagHOME_S& /*stHome*/) { return true; }

struct tagHOME_RULE_S {
    bool (*pfnFits)(const tagHOME_S&);
    bool (*pfnOpen)(const tagHOME_S&);  // opens a page, which can fail; null for a rule that
    void (*pfnPress)(const tagHOME_S&); // does something else
};

// In this order: what an item opens goes before the page that it stands on.
static constexpr tagHOME_RULE_S c_astHomeRule[] = {
    {osdHomeIs<SUBPAGE>, osdHomeSubPage, nullptr},
    {osdHomeIs<CONFIRM_POP, CONFIRM_POP_BTN>, osdHomeConfirmPage, nullptr},
    {osdHomeOnConfirmPage, nullptr, osdHomeAnswer},
    {osdHomeOnRestartPage, nullptr, osdHomeRestart},
    {osdHomeIs<CONFIRM>, nullptr, osdHomeButton},
    {osdHomeIs<KEY_WITH_MSG, MSG_WITH_SUBITEM>, nullptr, osdHomeWaiting},
    {osdHomeIs<EDITABLE>, nullptr, osdHomeAddress},
    {osdHomeAlways, nullptr, osdHomeNothing}};

static bool osdHomePress(const tagHOME_S& stHome)
{
    for (const tagHOME_RULE_S& stRule : c_astHomeRule) {
        if (!stRule.pfnFits(stHome)) {
            continue;
        }
        if (stRule.pfnOpen != nullptr) {
            return stRule.pfnOpen(stHome);
        }
        stRule.pfnPress(stHome);
        break;
    }
    return true;
}

bool osdKeyHome()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr) {
        return true;
    }
    tagITEM_NODE_S* pstItem = osdPageSelected(pstPage);
    if (pstItem == nullptr) {
        return false;
    }
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage)) {
        OSD_TRACE_FAILED(OSD_MENU_HandleKeyHome);
        return false;
    }
    OSD_TEXT acBusy = "...";
    osdCfgTranslate(acLanguage, OSD_WORD_LOADING, acBusy); // the dots stay where there is no word
    return osdHomePress({pstItem, pstPage, acBusy});
}
