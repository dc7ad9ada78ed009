// What a host may ask about the page on top.
#pragma once

#include "osd_records.h"

// Whether the selected item of a page opens a sub-page.
bool osdQueryOpensPage(tagPAGE_NODE_S* pstPage);

// The top page when it has this name, or null.
tagPAGE_NODE_S* osdQueryPage(const char* pcName);

// Whether the top page has this name and a top-level item of this key whose committed option reads "On"; the label
// counts.
bool osdQueryIsOn(const char* pcPageName, const char* pcKey);
