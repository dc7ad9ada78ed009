// Changed values: when they count as changed, when they are committed, and how the host's function gets them.
#pragma once

#include "menu/core/page.h"

// Whether the item has a pending change.
bool osdItemChanged(const tagITEM_NODE_S* pstItem);

// Commit: the value shown becomes the value committed. Roll back: the reverse.
void osdItemCommit(tagITEM_NODE_S* pstItem);
void osdItemRollBack(tagITEM_NODE_S* pstItem);

// Commits the option shown, whatever kind of value the item has: a number's committed value stays what it was.
inline void osdItemCommitOption(tagITEM_NODE_S* pstItem) { pstItem->s32SavedIdx = pstItem->s32CurIdx; }

// Hands an item to the host's function, which may close pages and build them anew: the item must not be touched behind
// this call.
void osdItemApply(tagITEM_NODE_S* pstItem);

// The same for an item of the marked page; false when it is gone. A page that only lies above the item's counts as
// well, as then nothing is lost but a refresh.
bool osdItemSurvives(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem);
