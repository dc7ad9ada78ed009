// What the marks of a drawn page are: whose text each is, and how many pixels it may have.
#pragma once

#include <string>
#include <vector>

#include "pages/measure/measure.h"
#include "pages/measure/page_tree.h"
#include "pages/measure/recorder.h"

namespace pages {

struct ShownText {
    std::size_t mark; ///< its index
    const Node* node; ///< null for a text of the page itself
    Role role;
    std::string key;
    const Element* element;
    int room;      ///< pixels that it may be wide
    SDL_Rect core; ///< what its letters fill, cut to that room
    int lost;      ///< bytes that it loses to the page's number
};

struct Shown {
    std::vector<Mark> marks;         ///< without background and frame
    std::vector<const Node*> owners; ///< of each mark; null for what belongs to no item alone
    std::vector<ShownText> texts;
    SDL_Rect area; ///< the menu, or the inside of a popup
    int foot;      ///< no row may reach below: there are hints, a message, or the menu ends
};

Shown explain(const tagPAGE_NODE_S& page, const Nodes& nodes, const Element& root, std::vector<Mark> marks);

} // namespace pages
