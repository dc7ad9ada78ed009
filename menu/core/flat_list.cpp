#include "menu/core/flat_list.h"

#include <algorithm>

#include "menu/core/page.h"

int32_t osdItemListCnt(const tagITEM_NODE_S* pstItem)
{
    return osdItemHasOptionLists(pstItem) ? std::min<int32_t>(pstItem->s32ValCnt, OSD_OPTION_MAX) : 0;
}

list_head* osdItemSubList(tagITEM_NODE_S* pstItem, int32_t s32Option)
{
    const bool bInRange = s32Option >= 0 && s32Option < OSD_OPTION_MAX && s32Option < pstItem->s32ValCnt;
    return bInRange && osdItemHasOptionLists(pstItem) ? &pstItem->astSubList[s32Option] : nullptr;
}

const char (&osdItemOption(const tagITEM_NODE_S* pstItem, int32_t s32Option))[OSD_TEXT_LEN]
{
    static constexpr char acNone[OSD_TEXT_LEN] = "";
    return s32Option >= 0 && s32Option < OSD_OPTION_MAX ? pstItem->acValue[s32Option] : acNone;
}

OSD_BOOL osdMenuHasSubItem(tagITEM_NODE_S* pstItemNode)
{
    if (pstItemNode->enValType == NUMERICAL) {
        return 0;
    }
    const list_head* pstList = osdItemSubList(pstItemNode, pstItemNode->s32CurIdx);
    return pstList != nullptr && !osdListEmpty(pstList) ? 1 : 0;
}

int osdMenuInsertItems2TmpList(tagITEM_NODE_S* pstItemNode, list_head* pstHead)
{
    osdListAddTail(&pstItemNode->stTmpNode, pstHead);
    if (osdMenuHasSubItem(pstItemNode) == 0) {
        return 0;
    }
    // sub-items behind a message wait with their option for the commit
    const int32_t s32Option =
        pstItemNode->enAttr == MSG_WITH_SUBITEM ? pstItemNode->s32SavedIdx : pstItemNode->s32CurIdx;
    list_head* pstSubList = osdItemSubList(pstItemNode, s32Option);
    if (pstSubList == nullptr) {
        return 0;
    }
    for (tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
        (void)osdMenuInsertItems2TmpList(pstSub, pstHead); // always 0
    }
    return 0;
}

void osdPageFlatten(tagPAGE_NODE_S* pstPage, list_head* pstHead)
{
    osdListInit(pstHead);
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        (void)osdMenuInsertItems2TmpList(pstItem, pstHead); // always 0
    }
}

tagITEM_NODE_S* osdFlatActive(list_head* pstHead)
{
    for (tagITEM_NODE_S* pstItem : osdFlatItems(pstHead)) {
        if (pstItem->bActive == 1) {
            return pstItem;
        }
    }
    return nullptr;
}

// The item of a list, or of any list below it, that the link belongs to.
static tagITEM_NODE_S* osdFlatOwner(list_head* pstList, const list_head* pstLink)
{
    for (tagITEM_NODE_S* pstItem : osdItems(pstList)) {
        if (&pstItem->stTmpNode == pstLink) {
            return pstItem;
        }
        const int32_t s32Lists = osdItemListCnt(pstItem);
        for (int32_t i = 0; i < s32Lists; i++) {
            tagITEM_NODE_S* pstSub = osdFlatOwner(&pstItem->astSubList[i], pstLink);
            if (pstSub != nullptr) {
                return pstSub;
            }
        }
    }
    return nullptr;
}

static tagITEM_NODE_S* osdFlatOwnerOnStack(const list_head* pstLink)
{
    for (int32_t i = 0; i < osdPageCnt(&gstPageMgr); i++) {
        tagITEM_NODE_S* pstItem = osdFlatOwner(&gstPageMgr.astPage[i].stItemList, pstLink);
        if (pstItem != nullptr) {
            return pstItem;
        }
    }
    return nullptr;
}

static tagITEM_NODE_S* osdFlatNeighbour(const tagITEM_NODE_S* pstItem, list_head* pstLink)
{
    if (osdFlatOwnerOnStack(&pstItem->stTmpNode) != nullptr) {
        return osdFlatOwnerOnStack(pstLink);
    }
    return pstLink != nullptr ? osdFlatItem(pstLink) : nullptr;
}

tagITEM_NODE_S* osdFlatPrev(const tagITEM_NODE_S* pstItem)
{
    return osdFlatNeighbour(pstItem, pstItem->stTmpNode.prev);
}
tagITEM_NODE_S* osdFlatNext(const tagITEM_NODE_S* pstItem)
{
    return osdFlatNeighbour(pstItem, pstItem->stTmpNode.next);
}

// On an icon page the position alone names the selected item.
static tagITEM_NODE_S* osdIconSelected(tagPAGE_NODE_S* pstPage)
{
    int32_t s32Pos = 0;
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        if (s32Pos == pstPage->s32SelIdx) {
            return pstItem;
        }
        s32Pos++;
    }
    return nullptr;
}

tagITEM_NODE_S* osdMenuGetSelectedItem(tagPAGE_NODE_S* pstPage)
{
    if (pstPage->enLayout == PAGE_LAYOUT_ICON) {
        return osdIconSelected(pstPage);
    }
    list_head stFlatList;
    osdPageFlatten(pstPage, &stFlatList);
    return osdFlatActive(&stFlatList);
}

OSD_BOOL osdMenuIsSubItemSelected(tagITEM_NODE_S* pstItemNode)
{
    if (osdMenuHasSubItem(pstItemNode) == 0) {
        return 0;
    }
    for (const tagITEM_NODE_S* pstSub : osdItems(&pstItemNode->astSubList[pstItemNode->s32CurIdx])) {
        if (pstSub->bActive == 1) {
            return 1;
        }
    }
    return 0;
}
