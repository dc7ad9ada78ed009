// Confirmed pages: "Yes" walks over the items of the page below, each page in its own way.
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/words.h"
#include "menu/nav/change.h"
#include "menu/nav/stack.h"
#include "osd_page.h"
#include "platform/config_service.h"

// Visits one top-level item; false ends the walk: the item was the last one, or the host took the page away.
using OSD_CONFIRM_VISIT = bool (*)(const tagPAGE_MARK_S&, tagITEM_NODE_S*);

static bool osdIsConfirm(const tagITEM_NODE_S* pstItem) { return osdTextEqual(pstItem->acItemIndex, OSD_KEY_CONFIRM); }

// A number's committed value stays what it was.
static void osdConfirmIndex(tagITEM_NODE_S* pstItem) { pstItem->s32SavedIdx = pstItem->s32CurIdx; }

static bool osdConfirmApply(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdConfirmIndex(pstItem);
    return osdItemSurvives(stMark, pstItem);
}

// The key of the committed option, or null.
static char (*osdConfirmOption(tagITEM_NODE_S* pstItem))[OSD_TEXT_LEN]
{
    const bool bInRange = pstItem->s32SavedIdx >= 0 && pstItem->s32SavedIdx < OSD_OPTION_MAX;
    return bInRange ? &pstItem->acValueKey[pstItem->s32SavedIdx] : nullptr;
}

// Straight to the configuration, past the host; an index that names no option stores an empty text.
static void osdConfirmStore(tagITEM_NODE_S* pstItem)
{
    osdConfirmIndex(pstItem);
    char(*pacOption)[OSD_TEXT_LEN] = osdConfirmOption(pstItem);
    char acNone[] = "";
    char* pcOption = pacOption != nullptr ? *pacOption : acNone;
    (void)CFG_COM_SetTxtParams(pstItem->acItemIndex, pcOption, 1); // the service reports its own failures
}

// The sub-items that show.
static tagITEM_WALK_S osdConfirmSubItems(tagITEM_NODE_S* pstItem)
{
    static list_head stNone; // an empty list
    list_head* pstList = osdMenuHasSubItem(pstItem) == 1 ? osdItemSubList(pstItem, pstItem->s32SavedIdx) : nullptr;
    return osdItems(pstList != nullptr ? pstList : &stNone);
}

static void osdConfirmAddress(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enAttr == EDITABLE) {
        osdTextSetField(pstItem->acValue[0], pstItem->acValue[1]); // the edited text becomes the stored one
    }
}

static bool osdNetworkExec(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    for (tagITEM_NODE_S* pstSub : osdConfirmSubItems(pstItem)) {
        osdConfirmAddress(pstSub);
        if (!osdItemSurvives(stMark, pstSub)) {
            return false;
        }
    }
    return true;
}

int OSD_MENU_NetworkItemExec(tagITEM_NODE_S* pstItemNode)
{
    (void)osdNetworkExec(osdPageMark(osdXmlGetCurPage()), pstItemNode); // nothing is touched behind it
    return 0;
}

// An automatic mode takes its addresses off the screen: the cursor goes up to the top-level item.
static void osdNetworkCursor(tagITEM_NODE_S* pstItem, tagITEM_NODE_S* pstSub)
{
    const char(*pacOption)[OSD_TEXT_LEN] = osdConfirmOption(pstSub);
    if (pacOption == nullptr || !osdTextEqual(*pacOption, OSD_WORD_AUTO_MODE)) {
        return;
    }
    tagITEM_NODE_S* pstBehind = osdFlatNext(pstSub);
    if (pstBehind != nullptr) {
        pstBehind->bActive = 0;
    }
    pstItem->bActive = 1;
}

static bool osdNetworkVisit(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    if (!osdConfirmApply(stMark, pstItem)) {
        return false;
    }
    for (tagITEM_NODE_S* pstSub : osdConfirmSubItems(pstItem)) {
        osdConfirmAddress(pstSub);
        if (!osdConfirmApply(stMark, pstSub) || !osdNetworkExec(stMark, pstSub)) {
            return false;
        }
        osdNetworkCursor(pstItem, pstSub);
    }
    return !osdIsConfirm(pstItem);
}

static bool osdFormatVisit(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    if (!osdConfirmApply(stMark, pstItem)) {
        return false;
    }
    for (tagITEM_NODE_S* pstSub : osdConfirmSubItems(pstItem)) {
        if (!osdConfirmApply(stMark, pstSub)) {
            return false;
        }
    }
    return !osdIsConfirm(pstItem);
}

// The item "Confirm" goes to the host under another key, which it keeps until the page is read again.
template <size_t N>
static bool osdConfirmLast(tagITEM_NODE_S* pstItem, const char (&acKey)[N])
{
    osdTextPatch(pstItem->acItemIndex, acKey);
    osdItemApply(pstItem);
    return false;
}

static bool osdRotateVisit(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdConfirmIndex(pstItem);
    return osdIsConfirm(pstItem) ? osdConfirmLast(pstItem, OSD_KEY_RESTART) : osdItemSurvives(stMark, pstItem);
}

static bool osdPipVisit(const tagPAGE_MARK_S& /*stMark*/, tagITEM_NODE_S* pstItem)
{
    osdConfirmStore(pstItem);
    return osdIsConfirm(pstItem) ? osdConfirmLast(pstItem, OSD_KEY_PIP) : true;
}

static bool osdVideoVisit(const tagPAGE_MARK_S& /*stMark*/, tagITEM_NODE_S* pstItem)
{
    osdConfirmStore(pstItem);
    for (tagITEM_NODE_S* pstSub : osdConfirmSubItems(pstItem)) {
        osdConfirmStore(pstSub);
    }
    return osdIsConfirm(pstItem) ? osdConfirmLast(pstItem, OSD_KEY_HDMI_CFG) : true;
}

static void osdConfirmWalk(tagPAGE_NODE_S* pstParent, OSD_CONFIRM_VISIT pfnVisit)
{
    const tagPAGE_MARK_S stMark = osdPageMark(pstParent);
    for (tagITEM_NODE_S* pstItem : osdItems(&pstParent->stItemList)) {
        if (!pfnVisit(stMark, pstItem)) {
            return;
        }
    }
}

static int osdConfirmAnswer(const tagITEM_NODE_S* pstAnswer, tagPAGE_NODE_S* pstPage, const char* pcParentName,
                            OSD_CONFIRM_VISIT pfnVisit)
{
    tagPAGE_NODE_S* pstParent = osdMenuGetPrevPage(pstPage);
    if (pstParent == nullptr || !osdTextEqual(pstParent->acPageName, pcParentName)) {
        return 1;
    }
    const bool bYes = osdTextEqual(pstAnswer->acItemIndex, OSD_KEY_YES);
    if (!bYes && !osdTextEqual(pstAnswer->acItemIndex, OSD_KEY_NO)) {
        return 0;
    }
    (void)osdMenuReleaseSinglePage(); // the answer goes with its page; the parent page is the top page now
    if (bYes) {
        osdConfirmWalk(pstParent, pfnVisit);
    }
    (void)OSD_MENU_RenderCanvas(); // reports its own failures
    return 0;
}

int OSD_MENU_NetworkHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmAnswer(pstItemNode, pstPage, OSD_PAGE_NETWORK, osdNetworkVisit);
}

int OSD_MENU_FormatHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmAnswer(pstItemNode, pstPage, OSD_PAGE_FORMAT, osdFormatVisit);
}

int OSD_MENU_RotateHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmAnswer(pstItemNode, pstPage, OSD_PAGE_ROTATE, osdRotateVisit);
}

int OSD_MENU_PipHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmAnswer(pstItemNode, pstPage, OSD_PAGE_PIP, osdPipVisit);
}

int OSD_MENU_VideoHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage)
{
    return osdConfirmAnswer(pstItemNode, pstPage, OSD_PAGE_VIDEO, osdVideoVisit);
}
