#include "pages/measure/page_tree.h"

#include <algorithm>

#include "menu/core/item.h"

namespace pages {
namespace {

Nodes nodes_of(list_head& items, const Element& above, Node* parent, int option)
{
    Nodes nodes;
    auto element = above.children.begin();
    for (tagITEM_NODE_S* item : osdItems(&items)) {
        if (element == above.children.end()) {
            break;
        }
        auto node = std::make_unique<Node>(Node{item, element->get(), parent, option, {}, {}, item->acValue[0]});
        const auto lists =
            std::min<std::size_t>(static_cast<std::size_t>(osdItemListCnt(item)), node->element->children.size());
        for (std::size_t i = 0; i < lists; ++i) {
            node->options.push_back(
                nodes_of(item->astSubList[i], *node->element->children[i], node.get(), static_cast<int>(i)));
        }
        nodes.push_back(std::move(node));
        ++element;
    }
    return nodes;
}

} // namespace

const Element& Node::element_of_value() const
{
    const auto chosen = static_cast<std::size_t>(item->s32CurIdx);
    return chosen < options.size() ? *element->children[chosen] : *element;
}

Nodes tree_of(tagPAGE_NODE_S& page, const Element& root) { return nodes_of(page.stItemList, root, nullptr, 0); }

} // namespace pages
