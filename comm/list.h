// Intrusive circular list.
#pragma once

#include "osd_records.h"

inline void osdListInit(list_head* pstHead)
{
    pstHead->next = pstHead;
    pstHead->prev = pstHead;
}

// A head that was never initialised counts as empty.
inline bool osdListEmpty(const list_head* pstHead) { return pstHead->next == nullptr || pstHead->next == pstHead; }

inline void osdListAddTail(list_head* pstLink, list_head* pstHead)
{
    pstLink->next = pstHead;
    pstLink->prev = pstHead->prev;
    pstHead->prev->next = pstLink;
    pstHead->prev = pstLink;
}
