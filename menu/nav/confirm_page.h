// Confirmed pages: "Yes" walks over the items of the page below, each page in its own way.
#pragma once

#include <cstddef>

#include "menu/nav/confirm_item.h"

// For the parent page of this name, which must be one of "network", "format", "rotate", "pip" and "video": "Yes" applies
// its items up to and with "Confirm".
tagANSWER_E osdConfirmPage(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage, const char* pcParentName);

// The same for whichever of these pages lies below: bOnRestart on the page "restart", which asks about "rotate" alone, and
// else on a page that asks about any of the others.
tagANSWER_E osdConfirmBelow(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage, bool bOnRestart);

// The names of the pages that are confirmed as a whole, one by one; null behind the last.
const char* osdConfirmPageName(size_t uIdx);

// Whether a page of this name is confirmed on the page "restart" alone.
bool osdConfirmOnRestart(const char* pcPageName);
