// Values that wait for the home key, and the message line that says so.
#pragma once

#include "osd_records.h"

// After a step: the top page's message line shows while the value waits.
void osdWaitingShow(const tagITEM_NODE_S* pstItem);

// After the item has lost the cursor: a value that waited is rolled back, and its message line goes.
void osdWaitingDrop(tagITEM_NODE_S* pstItem);
