// Walks over items: a list as it is linked, and a flattened list.
#pragma once

#include <cstddef>

#include "comm/list.h"

// A walk takes the next link before it hands out an item, so the item may be released in the loop's body.
//     for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) ...
struct tagITEM_WALK_S {
    list_head* pstHead;
    size_t uLink; // place of the link in the item
};
struct tagITEM_STEP_S {
    list_head* pstAt;
    list_head* pstNext;
    size_t uLink;
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
    return {pstFirst, pstFirst->next, stWalk.uLink};
}
inline tagITEM_STEP_S end(tagITEM_WALK_S stWalk) { return {stWalk.pstHead, stWalk.pstHead, stWalk.uLink}; }
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
    return reinterpret_cast<tagITEM_NODE_S*>(reinterpret_cast<char*>(stStep.pstAt) - stStep.uLink);
}
