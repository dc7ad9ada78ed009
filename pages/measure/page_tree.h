// The items of an open page, each with the element of the page file that it came from.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "osd_records.h"
#include "pages/data/page_file.h"

namespace pages {

struct Node;
using Nodes = std::vector<std::unique_ptr<Node>>;

struct Node {
    tagITEM_NODE_S* item;
    const Element* element;
    Node* parent;
    int option;                 ///< of the parent, below which it stands
    std::vector<Nodes> options; ///< what each option holds
    std::string value_key;      ///< of the text that its value shows now; empty for what isn't translated
    std::string own_button;     ///< the text of a button, as it was read

    const Element& element_of_value() const;
};

/// The items that could be read.
Nodes tree_of(tagPAGE_NODE_S& page, const Element& root);

/// Calls visit(node) for all nodes, those above first.
template <typename Visit>
void for_each_node(const Nodes& nodes, Visit&& visit)
{
    for (const auto& node : nodes) {
        visit(*node);
        for (const Nodes& option : node->options) {
            for_each_node(option, visit);
        }
    }
}

} // namespace pages
