// Confirmed pages: "Yes" walks over the items of the page below, each page in its own way.
#pragma once

#include "menu/nav/confirm_item.h"

// For the parent page of this name, which must be one of "network", "format", "rotate", "pip" and "video": "Yes" applies
// its items up to and with "Confirm".
tagANSWER_E osdConfirmPage(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage, const char* pcParentName);
