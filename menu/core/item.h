// Items: their options, the sub-items below these, and their life.
#pragma once

#include <memory>

#include "comm/text.h"
#include "menu/core/item_walk.h"

// Whether the item's attribute gives each option a list of sub-items.
inline bool osdItemHasOptionLists(const tagITEM_NODE_S* pstItem)
{
    return pstItem->enAttr == SUBITEM || pstItem->enAttr == MSG_WITH_SUBITEM;
}

// Whether the item's context carries a bound value.
inline bool osdItemHasValue(const tagITEM_NODE_S* pstItem)
{
    return pstItem->enCtx == NAME_BAR_VAL || pstItem->enCtx == NAME_VAL || pstItem->enCtx == NAME_IP_VAL;
}

// Whether the item's change waits for the home key.
inline bool osdItemWaits(const tagITEM_NODE_S* pstItem)
{
    return pstItem->enAttr == KEY_WITH_MSG || pstItem->enAttr == MSG_WITH_SUBITEM;
}

// How many of the item's options, and of its lists of sub-items, are in use.
int32_t osdItemOptionCnt(const tagITEM_NODE_S* pstItem);
int32_t osdItemListCnt(const tagITEM_NODE_S* pstItem);

// The sub-items of an option; null where there is no such list.
list_head* osdItemSubList(tagITEM_NODE_S* pstItem, int32_t s32Option);

// Whether the item has sub-items for its current option.
bool osdItemHasSubItems(const tagITEM_NODE_S* pstItem);

// Whether a direct sub-item under the current option has the cursor.
bool osdItemSubSelected(tagITEM_NODE_S* pstItem);

// The sub-items of the committed option where the current one has some; else an empty list.
tagITEM_WALK_S osdCommittedSubItems(tagITEM_NODE_S* pstItem);

// Label and key of an option; empty where there is no such option. A label may lack its end on an item that holds
// numbers.
const OSD_TEXT& osdItemOption(const tagITEM_NODE_S* pstItem, int32_t s32Option);
const OSD_TEXT& osdItemOptionKey(const tagITEM_NODE_S* pstItem, int32_t s32Option);

// Frees the item, or all items of a list, with all below them.
void osdItemRelease(tagITEM_NODE_S* pstItem);
void osdItemsRelease(list_head* pstHead);

struct OSD_ITEM_RELEASE {
    void operator()(tagITEM_NODE_S* pstItem) const { osdItemRelease(pstItem); }
};
using OSD_ITEM_PTR = std::unique_ptr<tagITEM_NODE_S, OSD_ITEM_RELEASE>;

// A zero-filled item, or null.
OSD_ITEM_PTR osdItemNew();
