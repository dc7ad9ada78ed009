// The functions that the camera hands to the menu. They act on the current camera.
#pragma once

#include "osd_menu.h"

namespace sim {

/// Stores the value of an item in the setting that it shows, or does what its button stands for, and logs one line.
int apply_item(tagITEM_NODE_S* item);

/// The parent key of a data zone; null when the settings definitions name none.
const char* parent_of_zone(const char* zone);

/// Answers what the menu asks about the device.
void answer_event(void* user, tagOSD_MENU_GET_EVENT_E event, tagOSD_MENU_CONTROL_PARAM_S* answer);

} // namespace sim
