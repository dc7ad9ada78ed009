// When a changed value is committed, and when it goes to the host's function.
#pragma once

#include "osd_records.h"

// Commits a pending change where the top page allows it, and hands it on with bUpdate.
void osdApplyChange(tagITEM_NODE_S* pstItem, bool bUpdate);

// Hands the item on, changed or not, unless its value waits for the home key.
void osdApplyItem(tagITEM_NODE_S* pstItem);

// Hands on the selected item of the top page and draws, where the host may apply its values one by one.
void osdApplySelected();
