#include "menu/core/network.h"

#include "comm/text.h"
#include "menu/core/change.h"
#include "menu/core/flat_list.h"
#include "menu/core/item.h"
#include "menu/core/words.h"
#include "platform/config_call.h"

bool osdNetworkIsAddressMode(const tagITEM_NODE_S* pstItem)
{
    return osdTextEqual(pstItem->acItemIndex, OSD_KEY_IP_MODE);
}

bool osdNetworkIsDnsMode(const tagITEM_NODE_S* pstItem) { return osdTextEqual(pstItem->acItemIndex, OSD_KEY_DNS_MODE); }

// Options are compared by their labels, as good as the service translates them.
bool osdNetworkHolds(const tagITEM_NODE_S* pstItem)
{
    if (!osdNetworkIsDnsMode(pstItem)) {
        return false;
    }
    OSD_TEXT acLanguage;
    OSD_TEXT acStatic = "";
    osdCfgLanguage(acLanguage);
    osdCfgTranslate(acLanguage, OSD_WORD_STATIC_IP, acStatic);
    const tagITEM_NODE_S* pstMode = osdFlatPrev(pstItem);
    return pstMode != nullptr && osdNetworkIsAddressMode(pstMode) &&
           osdTextFieldEqual(osdItemOption(pstMode, pstMode->s32SavedIdx), acStatic);
}

bool osdNetworkEndsPage(tagITEM_NODE_S* pstItem)
{
    if (!osdNetworkIsAddressMode(pstItem)) {
        return false;
    }
    OSD_TEXT acLanguage;
    OSD_TEXT acDhcp = "";
    OSD_TEXT acAuto = "";
    osdCfgLanguage(acLanguage);
    osdCfgTranslate(acLanguage, OSD_WORD_DHCP_IP, acDhcp);
    osdCfgTranslate(acLanguage, OSD_WORD_AUTO_MODE, acAuto);
    list_head* pstSubList = osdItemSubList(pstItem, pstItem->s32CurIdx);
    if (pstSubList == nullptr || !osdTextFieldEqual(osdItemOption(pstItem, pstItem->s32SavedIdx), acDhcp)) {
        return false;
    }
    for (const tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
        if (osdNetworkIsDnsMode(pstSub) && osdTextFieldEqual(osdItemOption(pstSub, pstSub->s32CurIdx), acAuto)) {
            return true;
        }
    }
    return false;
}

// The edited text of an address becomes the stored one.
static void osdNetworkStoreAddress(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enAttr == EDITABLE) {
        osdTextSetField(pstItem->acValue[0], pstItem->acValue[1]);
    }
}

bool osdNetworkApplySubItems(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    for (tagITEM_NODE_S* pstSub : osdCommittedSubItems(pstItem)) {
        osdNetworkStoreAddress(pstSub);
        if (!osdItemSurvives(stMark, pstSub)) {
            return false;
        }
    }
    return true;
}

// An automatic mode takes its addresses off the screen: the cursor goes up to the top-level item.
static void osdNetworkCursor(tagITEM_NODE_S* pstItem, const tagITEM_NODE_S* pstSub)
{
    if (!osdTextEqual(osdItemOptionKey(pstSub, pstSub->s32SavedIdx), OSD_WORD_AUTO_MODE)) {
        return;
    }
    tagITEM_NODE_S* pstBehind = osdFlatNext(pstSub);
    if (pstBehind != nullptr) {
        pstBehind->bActive = 0;
    }
    pstItem->bActive = 1;
}

bool osdNetworkApply(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdItemCommitOption(pstItem);
    if (!osdItemSurvives(stMark, pstItem)) {
        return false;
    }
    for (tagITEM_NODE_S* pstSub : osdCommittedSubItems(pstItem)) {
        osdNetworkStoreAddress(pstSub);
        osdItemCommitOption(pstSub);
        if (!osdItemSurvives(stMark, pstSub) || !osdNetworkApplySubItems(stMark, pstSub)) {
            return false;
        }
        osdNetworkCursor(pstItem, pstSub);
    }
    return true;
}
