// Walks over items: a list as it is linked, and the flattened list of what the user sees.
#pragma once

#include "comm/list.h"
#include "osd_page.h"

// A walk takes the next link before it hands out an item, so the item may be released in the loop's body.
//     for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) ...
struct tagITEM_WALK_S {
    list_head* pstHead;
    size_t u32Link; // place of the link in the item
};
struct tagITEM_STEP_S {
    list_head* pstAt;
    list_head* pstNext;
    size_t u32Link;
};

inline tagITEM_WALK_S osdItems(list_head* pstHead) { return {pstHead, offsetof(tagITEM_NODE_S, stNode)}; }
inline tagITEM_WALK_S osdFlatItems(list_head* pstHead) { return {pstHead, offsetof(tagITEM_NODE_S, stTmpNode)}; }

// The item of a link in a flattened list.
inline tagITEM_NODE_S* osdFlatItem(list_head* pstLink)
{
    return reinterpret_cast<tagITEM_NODE_S*>(reinterpret_cast<char*>(pstLink) - offsetof(tagITEM_NODE_S, stTmpNode));
}

inline tagITEM_STEP_S begin(tagITEM_WALK_S stWalk)
{
    list_head* pstFirst = osdListEmpty(stWalk.pstHead) ? stWalk.pstHead : stWalk.pstHead->next;
    return {pstFirst, pstFirst->next, stWalk.u32Link};
}
inline tagITEM_STEP_S end(tagITEM_WALK_S stWalk) { return {stWalk.pstHead, stWalk.pstHead, stWalk.u32Link}; }
inline bool operator!=(const tagITEM_STEP_S& stLeft, const tagITEM_STEP_S& stRight)
{
    return stLeft.pstAt != stRight.pstAt;
}
inline tagITEM_STEP_S& operator++(tagITEM_STEP_S& stStep)
{
    stStep.pstAt = stStep.pstNext;
    stStep.pstNext = stStep.pstAt->next;
    return stStep;
}
inline tagITEM_NODE_S* operator*(const tagITEM_STEP_S& stStep)
{
    return reinterpret_cast<tagITEM_NODE_S*>(reinterpret_cast<char*>(stStep.pstAt) - stStep.u32Link);
}

// Whether the item's attribute gives each option a list of sub-items.
inline bool osdItemHasOptionLists(const tagITEM_NODE_S* pstItem)
{
    return pstItem->enAttr == SUBITEM || pstItem->enAttr == MSG_WITH_SUBITEM;
}

// How many of the item's lists of sub-items are in use.
int32_t osdItemListCnt(const tagITEM_NODE_S* pstItem);

// Threads the page's items, with the sub-items that show, through their stTmpNode onto a fresh list.
void osdPageFlatten(tagPAGE_NODE_S* pstPage, list_head* pstHead);

// The first item of a flattened list that holds the cursor, or null.
tagITEM_NODE_S* osdFlatActive(list_head* pstHead);

// The item that stood right before (next: right behind) in the most recent flattened list, or null at its end. The head
// of that list may be gone, so the link of an open page's item is believed only when it leads to such an item; the link
// of any other item is its owner's, and taken as it stands.
tagITEM_NODE_S* osdFlatPrev(const tagITEM_NODE_S* pstItem);
tagITEM_NODE_S* osdFlatNext(const tagITEM_NODE_S* pstItem);

// The sub-items of an option; null where there is no such list.
list_head* osdItemSubList(tagITEM_NODE_S* pstItem, int32_t s32Option);

// The label of an option; empty where there is no such option. May lack its end on an item that holds numbers.
const char (&osdItemOption(const tagITEM_NODE_S* pstItem, int32_t s32Option))[OSD_TEXT_LEN];
