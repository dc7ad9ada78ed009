// What keys have in common.
#pragma once

#include "osd_menu.h"

// Draws at the end of a key; the redraw reports its own failures. Returns 0, the key's result.
int osdKeyRender();

extern "C" {
// Moves the cursor of the top page, or steps a value that the host's function doesn't get, and draws. Returns 0.
OSD_API int osdMenuChangeItem(tagOSD_MENU_KEY_E enKey);
}
