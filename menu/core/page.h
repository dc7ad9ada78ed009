// The page stack and the life of items.
#pragma once

#include <memory>

#include "osd_records.h"

extern "C" {
// The top page, or null with no page open.
OSD_API tagPAGE_NODE_S* osdXmlGetCurPage();

// Frees the item and all items below it. Returns 0.
OSD_API int osdMenuReleaseItem(tagITEM_NODE_S* pstItemNode);

// Frees the top page's items, clears its record and lowers the page count; uncommitted values are gone. Returns 0, also
// with no page open.
OSD_API int osdMenuReleaseSinglePage();
}

struct OSD_ITEM_RELEASE {
    void operator()(tagITEM_NODE_S* pstItem) const
    {
        (void)osdMenuReleaseItem(pstItem); // always 0
    }
};
using OSD_ITEM_PTR = std::unique_ptr<tagITEM_NODE_S, OSD_ITEM_RELEASE>;

// A zero-filled item, or null.
OSD_ITEM_PTR osdItemNew();

// Frees a page's items; the record stays in use with an empty list.
void osdPageDropItems(tagPAGE_NODE_S* pstPage);
