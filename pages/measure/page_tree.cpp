#include "pages/measure/page_tree.h"

#include <algorithm>

#include "menu/core/item.h"
#include "menu/core/value_status.h"
#include "pages/grammar/text_use.h"

namespace pages {
namespace {

std::string first_word(const std::string& key)
{
    return key.substr(0, key.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ", 1));
}

/// Whether the host tells an item's value by the key of a text.
bool is_answered(const std::string& key)
{
    for (std::size_t i = 0; osdStatusKey(i).pcKey != nullptr; ++i) {
        if (key == osdStatusKey(i).pcKey) {
            return osdStatusKey(i).bTranslated;
        }
    }
    return false;
}

Nodes nodes_of(list_head& items, const Element& above, Node* parent, int option,
               const std::vector<std::string>& answers)
{
    Nodes nodes;
    auto element = above.children.begin();
    for (tagITEM_NODE_S* item : osdItems(&items)) {
        if (element == above.children.end()) {
            break;
        }
        auto node = std::make_unique<Node>(Node{item, element->get(), parent, option, {}, {}, item->acValue[0]});
        if (item->enAttr == STATUS && is_answered(item->acItemIndex)) {
            node->answers = answers;
        }
        const auto lists =
            std::min<std::size_t>(static_cast<std::size_t>(osdItemListCnt(item)), node->element->children.size());
        for (std::size_t i = 0; i < lists; ++i) {
            node->options.push_back(
                nodes_of(item->astSubList[i], *node->element->children[i], node.get(), static_cast<int>(i), answers));
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

std::vector<std::string> host_answers(const ResourceFolder& folder)
{
    std::vector<std::string> answers;
    const auto used = text_uses(folder);
    for (const auto& [name, fact] : folder.definitions.facts) {
        if (!is_answered(name)) {
            continue;
        }
        answers.push_back(fact);
        for (const auto& [key, text] : folder.languages.begin()->second) {
            if (first_word(key) == first_word(fact) && key != fact && used.count(key) == 0) {
                answers.push_back(key);
            }
        }
    }
    return answers;
}

Nodes tree_of(tagPAGE_NODE_S& page, const Element& root, const std::vector<std::string>& answers)
{
    return nodes_of(page.stItemList, root, nullptr, 0, answers);
}

} // namespace pages
