// The stack of open pages.
#pragma once

#include <algorithm>

#include "osd_records.h"

// How many records of a stack hold pages, whatever its count says.
inline int32_t osdPageCnt(const tagPAGE_MGR_S* pstMgr)
{
    return std::clamp<int32_t>(pstMgr->s32PageCnt, 0, OSD_PAGE_MAX);
}

// The top page of a stack, or null with no page open.
tagPAGE_NODE_S* osdPageTop(tagPAGE_MGR_S* pstMgr = &gstPageMgr);

// The open page directly below, or null.
tagPAGE_NODE_S* osdPageBelow(const tagPAGE_NODE_S* pstPage);

// Frees the top page's items, clears its record and lowers the page count; nothing happens with no page open.
void osdPagePop();

// Frees a page's items; the record stays in use with an empty list.
void osdPageDropItems(tagPAGE_NODE_S* pstPage);

// Names one filling of a page record: while the page still holds it, the page's items are alive.
struct tagPAGE_MARK_S {
    const tagPAGE_NODE_S* pstPage;
    uint32_t u32Filling;
};

// The present filling of an open page.
tagPAGE_MARK_S osdPageMark(const tagPAGE_NODE_S* pstPage);

// Whether the page's items are still those of the mark. The host's function may close and rebuild pages inside a key.
bool osdPageHolds(const tagPAGE_MARK_S& stMark);
