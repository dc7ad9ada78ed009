// The colour text of the page "tally", six hexadecimal digits 0xRRGGBB; blue has no item of its own.
#pragma once

#include "osd_records.h"

// Asks the device, or without bUpdate, as the device doesn't know the change yet, computes the text from the selected
// item. pstList is the page's flattened list, which may be threaded anew.
void osdTallyUpdate(tagPAGE_NODE_S* pstPage, list_head* pstList, bool bUpdate);
