#include "menu/core/flat_list.h"

#include <cstdint>

#include "menu/core/item.h"
#include "menu/core/page.h"

static uintptr_t gs_uHead; // where the head of the most recent list stood; it may be gone, so this is no pointer

void osdFlatAppend(tagITEM_NODE_S* pstItem, list_head* pstHead)
{
    gs_uHead = reinterpret_cast<uintptr_t>(pstHead);
    osdListAddTail(&pstItem->stTmpNode, pstHead);
    if (!osdItemHasSubItems(pstItem)) {
        return;
    }
    // sub-items behind a message wait with their option for the commit
    list_head* pstSubList =
        osdItemSubList(pstItem, pstItem->enAttr == MSG_WITH_SUBITEM ? pstItem->s32SavedIdx : pstItem->s32CurIdx);
    if (pstSubList != nullptr) {
        for (tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
            osdFlatAppend(pstSub, pstHead);
        }
    }
}

void osdPageFlatten(tagPAGE_NODE_S* pstPage, list_head* pstHead)
{
    osdListInit(pstHead);
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        osdFlatAppend(pstItem, pstHead);
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
    const bool bEnd = pstLink == nullptr || reinterpret_cast<uintptr_t>(pstLink) == gs_uHead;
    return bEnd ? nullptr : osdFlatItem(pstLink);
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

tagITEM_NODE_S* osdPageSelected(tagPAGE_NODE_S* pstPage)
{
    if (pstPage->enLayout == PAGE_LAYOUT_ICON) {
        return osdIconSelected(pstPage);
    }
    list_head stFlatList;
    osdPageFlatten(pstPage, &stFlatList);
    return osdFlatActive(&stFlatList); // NOLINT(clang-analyzer-core.StackAddressEscape): gs_uHead is only compared
}
