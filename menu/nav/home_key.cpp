// The home key: the first rule that fits the selected item decides what pressing it means.
#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/words.h"
#include "menu/nav/address.h"
#include "menu/nav/change.h"
#include "menu/nav/keys.h"
#include "menu/nav/stack.h"
#include "osd_page.h"
#include "platform/config_call.h"

struct tagHOME_S {
    tagITEM_NODE_S* pstItem; // selected on the top page
    tagPAGE_NODE_S* pstPage; // the top page
    const char (&acBusy)[OSD_TEXT_LEN];
};

static int osdHomeSubPage(const tagHOME_S& stHome)
{
    if (osdStackIsFull(stHome.pstItem->acSubPage)) {
        return -1;
    }
    osdTrace("%s %d, pstActiveItem->acSubPage = %s\n", OSD_PLACE, stHome.pstItem->acSubPage);
    return osdStackPush(stHome.pstItem->acSubPage) == 0 ? osdKeyRender() : -1;
}

static int osdHomeConfirmPage(const tagHOME_S& stHome)
{
    if (osdStackIsFull(stHome.pstItem->acConfirmPage)) {
        return -1;
    }
    if (stHome.pstItem->enAttr == CONFIRM_POP) {
        osdButtonSet(stHome.pstItem, stHome.acBusy);
    }
    (void)osdKeyRender(); // the button is busy while the page is read
    osdTrace("%s %d, pstActiveItem->acConfirmPage = %s\n", OSD_PLACE, stHome.pstItem->acConfirmPage);
    return osdStackPush(stHome.pstItem->acConfirmPage) == 0 ? osdKeyRender() : -1;
}

// In this order; each answers 1 where the parent page or item is not its own.
static constexpr int (*gs_apfnAnswer[])(tagITEM_NODE_S*, tagPAGE_NODE_S*) = {
    OSD_MENU_FactoryRestoreHandleHomeKey, OSD_MENU_NetworkHandleHomeKey, OSD_MENU_FormatHandleHomeKey,
    OSD_MENU_PipHandleHomeKey, OSD_MENU_VideoHandleHomeKey};

static int osdHomeAnswer(const tagHOME_S& stHome)
{
    for (const auto pfnAnswer : gs_apfnAnswer) {
        if (pfnAnswer(stHome.pstItem, stHome.pstPage) != 1) {
            return 0;
        }
    }
    (void)OSD_MENU_IspHandleHomeKey(stHome.pstItem, stHome.pstPage); // reports its own failure
    return 0;
}

static int osdHomeRestart(const tagHOME_S& stHome)
{
    (void)OSD_MENU_RotateHandleHomeKey(stHome.pstItem, stHome.pstPage); // 1 above another page: nothing happens
    return 0;
}

static int osdHomeButton(const tagHOME_S& stHome)
{
    tagITEM_NODE_S* pstItem = stHome.pstItem;
    if (pstItem->enPicType == MAINTYPE || osdTextEqual(pstItem->acItemIndex, OSD_KEY_BACK)) {
        osdItemApply(pstItem);
        return 0;
    }
    char acOwn[OSD_TEXT_LEN] = {};
    const char(*pacText)[OSD_TEXT_LEN] = osdButtonText(pstItem);
    if (pacText != nullptr) {
        osdTextSetField(acOwn, *pacText);
    }
    osdButtonSet(pstItem, stHome.acBusy);
    (void)osdKeyRender();
    if (osdItemSurvives(osdPageMark(stHome.pstPage), pstItem)) {
        osdButtonSet(pstItem, acOwn);
    }
    return osdKeyRender();
}

static int osdHomeWaiting(const tagHOME_S& stHome)
{
    if (osdXmlIsStaticOfNetMode(stHome.pstItem) == 1 || osdMenuParamChange(stHome.pstItem) != 1) {
        return 0; // a value that is held keeps waiting, with its message line
    }
    osdItemCommit(stHome.pstItem);
    stHome.pstPage->bKeyMsg = 0;
    osdItemApply(stHome.pstItem);
    return osdKeyRender();
}

static int osdHomeAddress(const tagHOME_S& stHome)
{
    osdAddressToggle(stHome.pstItem);
    return osdKeyRender();
}

static int osdHomeNothing(const tagHOME_S& /*stHome*/) { return osdKeyRender(); }

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
    int (*pfnPress)(const tagHOME_S&);
};

// In this order: what an item opens goes before the page that it stands on.
static constexpr tagHOME_RULE_S gs_astHomeRule[] = {
    {osdHomeIs<SUBPAGE>, osdHomeSubPage},  {osdHomeIs<CONFIRM_POP, CONFIRM_POP_BTN>, osdHomeConfirmPage},
    {osdHomeOnConfirmPage, osdHomeAnswer}, {osdHomeOnRestartPage, osdHomeRestart},
    {osdHomeIs<CONFIRM>, osdHomeButton},   {osdHomeIs<KEY_WITH_MSG, MSG_WITH_SUBITEM>, osdHomeWaiting},
    {osdHomeIs<EDITABLE>, osdHomeAddress}, {osdHomeAlways, osdHomeNothing}};

static int osdHomePress(const tagHOME_S& stHome)
{
    for (const tagHOME_RULE_S& stRule : gs_astHomeRule) {
        if (stRule.pfnFits(stHome)) {
            return stRule.pfnPress(stHome);
        }
    }
    return 0;
}

int OSD_MENU_HandleKeyHome()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr) {
        return 0;
    }
    tagITEM_NODE_S* pstItem = osdMenuGetSelectedItem(pstPage);
    if (pstItem == nullptr) {
        return -1;
    }
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    char acBusy[OSD_TEXT_LEN] = "...";
    (void)osdCfgTranslate(acLanguage, OSD_WORD_LOADING, acBusy); // the dots stay where there is no word
    return osdHomePress({pstItem, pstPage, acBusy});
}
