// Editing of an address: left and right walk over its digits, up and down turn the digit under the cursor.
//
//     folded      192.168.1.5          shown while the item is not edited
//     expanded    192.168.001.005      edited: every character has a fixed place
#pragma once

#include "osd_page.h"

// Starts the editing of an item, or ends it and keeps the edit in the item's working text.
void osdAddressToggle(tagITEM_NODE_S* pstItem);
