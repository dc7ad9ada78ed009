// The stack of open pages: what raises and lowers its depth, and what is put right before a page goes. pcFunc is the
// function of the interface that a line in the log names.
#pragma once

#include "menu/core/page.h"

// Whether five pages are open; a push is refused then, with a line in the log, before anything changes.
bool osdStackIsFull(const char* pcPageName, const char* pcFunc);

// Parses a page into the next record and counts it, also when it can't be parsed: false then, with a line in the log.
// Call while the stack isn't full.
bool osdStackPush(const char* pcPageName, const char* pcFunc);

// Pushes the named page; false with no page open, on a full stack and when the page can't be parsed.
bool osdStackNext(const char* pcPageName);

// Pops the top page; false with no page open.
bool osdStackBack();

// The selected item of a page, or null with a line in the log.
tagITEM_NODE_S* osdStackSelected(tagPAGE_NODE_S* pstPage, const char* pcFunc);

// Leaves the top page for the one below: the button that opened a confirm page gets its text back first.
void osdStackStepBack();
