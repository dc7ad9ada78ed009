// The stack of open pages: what raises and lowers its depth, and what is put right before a page goes.
#pragma once

#include "menu/core/page.h"

// Whether five pages are open; a push is refused then, with a line in the log, before anything changes.
bool osdStackIsFull(const char* pcPageName);

// Parses a page into the next record and counts it, also when it can't be parsed. Call while the stack isn't full.
// Returns 0, or -1 with a line in the log.
int osdStackPush(const char* pcPageName);

// The selected item of the page below the top page, or null.
tagITEM_NODE_S* osdStackParentItem(tagPAGE_MGR_S* pstMgr);

// The selected item of a page, or null with a line in the log.
tagITEM_NODE_S* osdStackSelected(tagPAGE_NODE_S* pstPage);

// The text on a button; null where the item's option is none.
char (*osdButtonText(tagITEM_NODE_S* pstItem))[OSD_TEXT_LEN];

// Puts a text on a button; without an item, or on an item without that option, nothing happens.
void osdButtonSet(tagITEM_NODE_S* pstItem, const char (&acText)[OSD_TEXT_LEN]);

// Leaves the top page for the one below: the button that opened a confirm page gets its text back first.
void osdStackStepBack();
