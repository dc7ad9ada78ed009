// Puts an open page into the states in which all that it can show shows.
#pragma once

#include <functional>

#include "pages/measure/page_tree.h"

namespace pages {

/// Calls draw() in each state: rows step through their values together, once without a cursor and once with the cursor on
/// each of them; then with as many rows as can show, under each message. Icons are selected one after another.
void for_each_state(tagPAGE_NODE_S& page, const Nodes& nodes, const std::function<void()>& draw);

} // namespace pages
