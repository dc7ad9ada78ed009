// The step that a key makes without handing the value on.
#pragma once

#include "osd_menu.h"

extern "C" {
// Moves the cursor of the top page, or steps a value that the host's function doesn't get, and draws. Returns 0.
OSD_API int osdMenuChangeItem(tagOSD_MENU_KEY_E enKey);
}
