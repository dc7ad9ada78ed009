// The items of an open page, each with the element of the page file that it came from.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "osd_records.h"
#include "pages/data/resource_folder.h"

namespace pages {

struct Node;
using Nodes = std::vector<std::unique_ptr<Node>>;

struct Node {
    tagITEM_NODE_S* item;
    const Element* element;
    Node* parent;
    int option;                         ///< of the parent, below which it stands
    std::vector<Nodes> options;         ///< what each option holds
    std::string value_key;              ///< of the text that its value shows now; empty for what isn't translated
    std::string own_button;             ///< the text of a button, as it was read
    std::vector<std::string> answers{}; ///< keys of the texts that the host can tell of a STATUS item

    const Element& element_of_value() const;
};

/// The keys of the texts that the camera can tell where it tells one: that of settings.json, and all that nothing else
/// uses and that begin with the same word, as NdiActive and NdiInactive do.
std::vector<std::string> host_answers(const ResourceFolder& folder);

/// The items that could be read.
Nodes tree_of(tagPAGE_NODE_S& page, const Element& root, const std::vector<std::string>& answers);

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
