// The flattened list: the items of a page that show, in the order in which they are drawn.
#pragma once

#include "menu/core/item_walk.h"

// Threads the page's items, with the sub-items that show, through their stTmpNode onto a fresh list.
void osdPageFlatten(tagPAGE_NODE_S* pstPage, list_head* pstHead);

// Appends the item and its visible sub-items, depth first.
void osdFlatAppend(tagITEM_NODE_S* pstItem, list_head* pstHead);

// The first item of a flattened list that holds the cursor, or null.
tagITEM_NODE_S* osdFlatActive(list_head* pstHead);

// The page's selected item, or null: on a list the active one, on an icon page the one at the selected place.
tagITEM_NODE_S* osdPageSelected(tagPAGE_NODE_S* pstPage);

// The item that stood right before (next: right behind) in the most recent flattened list, or null at its end. What the
// link of an open page's item leads to may be gone, so it is followed only to another such item; the link of any other
// item is its owner's, and taken as it stands.
tagITEM_NODE_S* osdFlatPrev(const tagITEM_NODE_S* pstItem);
tagITEM_NODE_S* osdFlatNext(const tagITEM_NODE_S* pstItem);
