// Keys and settings by name.
#pragma once

#include <map>
#include <string>

namespace fake {

// "menu", "down_right", "home", "left_update", "set" ...; also the host's refreshes and questions.
const std::map<std::string, int (*)()>& keys();

// Presses keys in order, and gives the result of the last. "Gain=High" changes the setting "Gain" instead.
int press(const std::string& words);

} // namespace fake
