// What a host may ask about the page on top.
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/core/words.h"
#include "osd_page.h"

static tagPAGE_NODE_S* osdQueryPage(const char* pcName)
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    return pstPage != nullptr && osdTextEqual(pstPage->acPageName, pcName) ? pstPage : nullptr;
}

// A top-level item of the page whose committed option reads "On"; the label counts.
static OSD_BOOL osdQueryIsOn(const char* pcPageName, const char* pcKey)
{
    tagPAGE_NODE_S* pstPage = osdQueryPage(pcPageName);
    if (pstPage == nullptr) {
        return 0;
    }
    for (const tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        if (osdTextEqual(pstItem->acItemIndex, pcKey) &&
            osdTextFieldEqual(osdItemOption(pstItem, pstItem->s32SavedIdx), OSD_WORD_ON)) {
            return 1;
        }
    }
    return 0;
}

OSD_BOOL osdXmlIsInNetworkPage() { return osdQueryPage(OSD_PAGE_NETWORK) != nullptr ? 1 : 0; }
OSD_BOOL osdXmlIsOnOfViewFollowExposure() { return osdQueryIsOn(OSD_PAGE_EXPOSURE, OSD_KEY_VIEW_EXPOSURE); }
OSD_BOOL osdXmlIsOnOfViewFollowWB() { return osdQueryIsOn(OSD_PAGE_WBLANCE, OSD_KEY_VIEW_WB); }
