// Keys by name, and the menu's state as text.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "osd_records.h"

namespace fake {

// "menu", "down_right", "home", "left_update", "set" ...; also the host's refreshes and questions.
const std::map<std::string, int (*)()>& keys();

// Presses keys in order, and gives the result of the last. "Gain=High" changes the setting "Gain" instead,
// "language=German" the language; "|" clears the log of calls.
int press(const std::string& words);

// What the user sees of a list, sub-items behind their parent.
std::vector<const tagITEM_NODE_S*> visibleItems(const tagPAGE_NODE_S& page);

// An item as "Gain", "Gain=2" on another option than the first, "Gain=2/1" while 1 is committed, "Zoom=40",
// "Ip=10.0.0.7|10.0.0.9" with an edit, "@3" while it is edited, "Go='Start'".
std::string shown(const tagITEM_NODE_S& item);

// A page as "main.More" with its selected item or, the top one, as "main(Gain*=1 Zoom=40) 'Press'" with all items and
// the message line; an icon page as "icons#3". All pages with " / " between them.
std::string pageState(const tagPAGE_NODE_S& page, bool top);
std::string state();

} // namespace fake
