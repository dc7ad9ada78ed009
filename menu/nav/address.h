// Editing of an address: left and right walk over its digits, up and down turn the digit under the cursor.
//
//     folded      192.168.1.5          shown while the item is not edited
//     expanded    192.168.001.005      edited: every character has a fixed place
#pragma once

#include "osd_menu.h"

// Starts the editing of an item, or ends it and keeps the edit in the item's working text.
void osdAddressToggle(tagITEM_NODE_S* pstItem);

extern "C" {
// 1 when the selected item of the top page is being edited.
OSD_API OSD_BOOL osdMenuIsItemEditing();

// Rewrite a text in place into one of the forms; the field has room for 31 bytes. A text that is no address counts as
// far as it can be read, missing groups as 0. Return 0.
OSD_API int osdMenuExpandNetworkData(char* pcData);
OSD_API int osdMenuFoldNetworkData(char* pcData);

// Applies one direction to the selected item of the top page. Returns 0, or -1 when there is none.
OSD_API int osdMenuEditableItemKeyEvent(tagOSD_MENU_KEY_E enKey);

// Ends the editing of the selected item and drops the edit. Returns 1 when there was one.
OSD_API OSD_BOOL osdMenuExitEditableStatus(tagPAGE_MGR_S* pstMgr);
}
