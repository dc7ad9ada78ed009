#include "menu/core/item.h"

#include <algorithm>
#include <cstdlib>

int32_t osdItemOptionCnt(const tagITEM_NODE_S* pstItem)
{
    return std::min<int32_t>(pstItem->s32ValCnt, OSD_OPTION_MAX);
}

int32_t osdItemListCnt(const tagITEM_NODE_S* pstItem)
{
    return osdItemHasOptionLists(pstItem) ? osdItemOptionCnt(pstItem) : 0;
}

// Whether there is a list of sub-items for the option.
static bool osdItemHasList(const tagITEM_NODE_S* pstItem, int32_t s32Option)
{
    return s32Option >= 0 && s32Option < osdItemListCnt(pstItem);
}

list_head* osdItemSubList(tagITEM_NODE_S* pstItem, int32_t s32Option)
{
    return osdItemHasList(pstItem, s32Option) ? &pstItem->astSubList[s32Option] : nullptr;
}

bool osdItemHasSubItems(const tagITEM_NODE_S* pstItem)
{
    return pstItem->enValType != NUMERICAL && osdItemHasList(pstItem, pstItem->s32CurIdx) &&
           !osdListEmpty(&pstItem->astSubList[pstItem->s32CurIdx]);
}

bool osdItemSubSelected(tagITEM_NODE_S* pstItem)
{
    if (!osdItemHasSubItems(pstItem)) {
        return false;
    }
    for (const tagITEM_NODE_S* pstSub : osdItems(&pstItem->astSubList[pstItem->s32CurIdx])) {
        if (pstSub->bActive == 1) {
            return true;
        }
    }
    return false;
}

static list_head gs_stNone; // an empty list, to which nothing is ever linked

tagITEM_WALK_S osdCommittedSubItems(tagITEM_NODE_S* pstItem)
{
    list_head* pstList = osdItemHasSubItems(pstItem) ? osdItemSubList(pstItem, pstItem->s32SavedIdx) : nullptr;
    return osdItems(pstList != nullptr ? pstList : &gs_stNone);
}

static const OSD_TEXT& osdOptionOf(const OSD_TEXT (&aacOption)[OSD_OPTION_MAX], int32_t s32Option)
{
    static constexpr OSD_TEXT acNone = "";
    return s32Option >= 0 && s32Option < OSD_OPTION_MAX ? aacOption[s32Option] : acNone;
}

const OSD_TEXT& osdItemOption(const tagITEM_NODE_S* pstItem, int32_t s32Option)
{
    return osdOptionOf(pstItem->acValue, s32Option);
}

const OSD_TEXT& osdItemOptionKey(const tagITEM_NODE_S* pstItem, int32_t s32Option)
{
    return osdOptionOf(pstItem->acValueKey, s32Option);
}

void osdItemsRelease(list_head* pstHead)
{
    for (tagITEM_NODE_S* pstItem : osdItems(pstHead)) {
        osdItemRelease(pstItem);
    }
}

void osdItemRelease(tagITEM_NODE_S* pstItem)
{
    const int32_t s32Lists = osdItemListCnt(pstItem);
    for (int32_t i = 0; i < s32Lists; i++) {
        osdItemsRelease(&pstItem->astSubList[i]);
    }
    free(pstItem);
}

OSD_ITEM_PTR osdItemNew() { return OSD_ITEM_PTR(static_cast<tagITEM_NODE_S*>(calloc(1, sizeof(tagITEM_NODE_S)))); }
