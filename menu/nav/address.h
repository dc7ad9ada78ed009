// Editing of an address: left and right walk over its digits, up and down turn the digit under the cursor.
//
//     folded      192.168.1.5          shown while the item is not edited
//     expanded    192.168.001.005      edited: every character has a fixed place
#pragma once

#include "osd_menu.h"

// Starts the editing of an item, or ends it and keeps the edit in the item's working text.
void osdAddressToggle(tagITEM_NODE_S* pstItem);

// Whether the selected item of the top page is being edited.
bool osdAddressIsEdited();

// Rewrite a text in place into one of the forms; the field has room for 31 bytes. A text that is no address counts as
// far as it can be read, missing groups as 0.
void osdAddressExpand(char* pcData);
void osdAddressFold(char* pcData);

// Applies one direction to the selected item of the top page; false when there is none.
bool osdAddressKey(tagOSD_MENU_KEY_E enKey);

// Ends the editing of the selected item and drops the edit; false when there was none.
bool osdAddressDrop(tagPAGE_MGR_S* pstMgr);

// The digits and the dots of an edited address, up to and with the character under the cursor.
struct tagADDRESS_COUNT_S {
    int s32Digits;
    int s32Dots;
};
tagADDRESS_COUNT_S osdAddressCount(const tagITEM_NODE_S* pstItem);
