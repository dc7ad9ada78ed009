// What the menu shows at present, as plain values: for people and programs that don't look at the picture.
#pragma once

#include <string>
#include <vector>

namespace sim {

class Camera;

struct ItemState {
    std::string key;
    std::string label;
    std::string value; ///< as it is drawn; empty for an item without one
    bool selected = false;
    bool editing = false; ///< an address whose digits are being changed
};

struct PageState {
    std::string name;
    std::string title; ///< empty for a page without one
    std::string layout;
    std::string message;          ///< of a question, or of a value that waits; empty for none
    std::vector<ItemState> items; ///< what shows, in its order
};

/// The open pages, the lowest first; empty while the menu is closed. On the menu thread.
std::vector<PageState> menu_state(Camera& camera);

/// The item with the cursor; null when there is none.
const ItemState* selected_item(const PageState& page);

} // namespace sim
