// The home key: the first rule that fits the selected item decides what pressing it means.
#pragma once

// Presses the home key; false where OSD_MENU_HandleKeyHome gives -1.
bool osdKeyHome();
