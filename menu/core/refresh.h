// Reading the top page's values again, on the host's request.
#pragma once

// Builds the top page anew from its file and draws it; false with no page open.
bool osdRefreshPageFile();

// Reads the top-level items with this key again, with their visible sub-items, and draws when there is one.
void osdRefreshKey(const char* pcItemIndex);

// Reads the top-level items again, in order, up to and with the first CONFIRM_POP_BTN item; doesn't draw.
void osdRefreshPage();
