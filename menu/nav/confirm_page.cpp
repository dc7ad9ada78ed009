#include "menu/nav/confirm_page.h"

#include <iterator>

#include "comm/text.h"
#include "menu/core/canvas.h"
#include "menu/core/change.h"
#include "menu/core/item.h"
#include "menu/core/network.h"
#include "menu/core/words.h"
#include "platform/config_call.h"

// Visits one top-level item; false ends the walk: the item was the last one, or the host took the page away.
using OSD_CONFIRM_VISIT = bool (*)(const tagPAGE_MARK_S&, tagITEM_NODE_S*);

static bool osdIsConfirm(const tagITEM_NODE_S* pstItem) { return osdTextEqual(pstItem->acItemIndex, OSD_KEY_CONFIRM); }

static bool osdConfirmApply(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdItemCommitOption(pstItem);
    return osdItemSurvives(stMark, pstItem);
}

// Straight to the configuration, past the host; an index that names no option stores an empty text.
static void osdConfirmStore(tagITEM_NODE_S* pstItem)
{
    osdItemCommitOption(pstItem);
    osdCfgSetTxt(pstItem->acItemIndex, osdItemOptionKey(pstItem, pstItem->s32SavedIdx));
}

static bool osdNetworkVisit(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    return osdNetworkApply(stMark, pstItem) && !osdIsConfirm(pstItem);
}

static bool osdFormatVisit(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    if (!osdConfirmApply(stMark, pstItem)) {
        return false;
    }
    for (tagITEM_NODE_S* pstSub : osdCommittedSubItems(pstItem)) {
        if (!osdConfirmApply(stMark, pstSub)) {
            return false;
        }
    }
    return !osdIsConfirm(pstItem);
}

// The item "Confirm" goes to the host under another key, which it keeps until the page is read again.
template <size_t N>
static void osdConfirmLast(tagITEM_NODE_S* pstItem, const char (&acKey)[N])
{
    osdTextPatch(pstItem->acItemIndex, acKey);
    osdItemApply(pstItem);
}

static bool osdRotateVisit(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdItemCommitOption(pstItem);
    if (!osdIsConfirm(pstItem)) {
        return osdItemSurvives(stMark, pstItem);
    }
    osdConfirmLast(pstItem, OSD_KEY_RESTART);
    return false;
}

static bool osdPipVisit(const tagPAGE_MARK_S& /*stMark*/, tagITEM_NODE_S* pstItem)
{
    osdConfirmStore(pstItem);
    if (!osdIsConfirm(pstItem)) {
        return true;
    }
    osdConfirmLast(pstItem, OSD_KEY_PIP);
    return false;
}

static bool osdVideoVisit(const tagPAGE_MARK_S& /*stMark*/, tagITEM_NODE_S* pstItem)
{
    osdConfirmStore(pstItem);
    for (tagITEM_NODE_S* pstSub : osdCommittedSubItems(pstItem)) {
        osdConfirmStore(pstSub);
    }
    if (!osdIsConfirm(pstItem)) {
        return true;
    }
    osdConfirmLast(pstItem, OSD_KEY_HDMI_CFG);
    return false;
}

struct tagCONFIRM_PAGE_S {
    const char* pcName;
    OSD_CONFIRM_VISIT pfnVisit;
    bool bOnRestart; // its confirm page is "restart"
};
static constexpr tagCONFIRM_PAGE_S c_astConfirmPage[] = {{OSD_PAGE_NETWORK, osdNetworkVisit, false},
                                                         {OSD_PAGE_FORMAT, osdFormatVisit, false},
                                                         {OSD_PAGE_PIP, osdPipVisit, false},
                                                         {OSD_PAGE_VIDEO, osdVideoVisit, false},
                                                         {OSD_PAGE_ROTATE, osdRotateVisit, true}};

const char* osdConfirmPageName(size_t uIdx)
{
    return uIdx < std::size(c_astConfirmPage) ? c_astConfirmPage[uIdx].pcName : nullptr;
}

static const tagCONFIRM_PAGE_S* osdConfirmNamed(const char* pcPageName)
{
    for (const tagCONFIRM_PAGE_S& stPage : c_astConfirmPage) {
        if (osdTextEqual(pcPageName, stPage.pcName)) {
            return &stPage;
        }
    }
    return nullptr;
}

bool osdConfirmOnRestart(const char* pcPageName)
{
    const tagCONFIRM_PAGE_S* pstConfirm = osdConfirmNamed(pcPageName);
    return pstConfirm != nullptr && pstConfirm->bOnRestart;
}

// The page below a confirm page, when it is one that is confirmed as a whole; else null.
static const tagCONFIRM_PAGE_S* osdConfirmFind(const tagPAGE_NODE_S* pstParent)
{
    return pstParent != nullptr ? osdConfirmNamed(pstParent->acPageName) : nullptr;
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

static void osdConfirmTakePage(const tagITEM_NODE_S* pstAnswer, tagPAGE_NODE_S* pstParent, OSD_CONFIRM_VISIT pfnVisit)
{
    const bool bYes = osdTextEqual(pstAnswer->acItemIndex, OSD_KEY_YES);
    if (!bYes && !osdTextEqual(pstAnswer->acItemIndex, OSD_KEY_NO)) {
        return;
    }
    osdPagePop(); // the answer goes with its page; the parent page is the top page now
    if (bYes) {
        osdConfirmWalk(pstParent, pfnVisit);
    }
    osdCanvasRender();
}

tagANSWER_E osdConfirmPage(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage, const char* pcParentName)
{
    tagPAGE_NODE_S* pstParent = osdPageBelow(pstPage);
    const tagCONFIRM_PAGE_S* pstConfirm = osdConfirmFind(pstParent);
    if (pstConfirm == nullptr || !osdTextEqual(pstConfirm->pcName, pcParentName)) {
        return ANSWER_OTHERS;
    }
    osdConfirmTakePage(pstAnswer, pstParent, pstConfirm->pfnVisit);
    return ANSWER_DONE;
}

tagANSWER_E osdConfirmBelow(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage, bool bOnRestart)
{
    const tagCONFIRM_PAGE_S* pstConfirm = osdConfirmFind(osdPageBelow(pstPage));
    return pstConfirm != nullptr && pstConfirm->bOnRestart == bOnRestart
               ? osdConfirmPage(pstAnswer, pstPage, pstConfirm->pcName)
               : ANSWER_OTHERS;
}
