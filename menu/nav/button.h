// Texts on buttons: an item's current option, which says how far the host is with what the button does.
#pragma once

#include "osd_records.h"

// The text on a button; empty where the item's option is none.
const OSD_TEXT& osdButtonText(const tagITEM_NODE_S* pstItem);

// Puts a text on a button; without an item, or on an item without that option, nothing happens.
void osdButtonSet(tagITEM_NODE_S* pstItem, const OSD_TEXT& acText);

// Put the text back on the button below the top page that the home key has changed: on "FactoryRestore" the bare word
// "Confirm", on four others its translation. The second gives false when there is no language.
void osdButtonRestoreFactory(tagPAGE_MGR_S* pstMgr);
bool osdButtonRestore(tagPAGE_MGR_S* pstMgr);
