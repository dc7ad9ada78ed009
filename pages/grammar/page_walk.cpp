#include "pages/grammar/page_walk.h"

#include <algorithm>

#include "menu/core/keyword.h"

namespace pages {
namespace {

int depth_of(const Element& element)
{
    int depth = 0;
    for (const Element* above = element.parent; above != nullptr; above = above->parent) {
        ++depth;
    }
    return depth;
}

template <typename Keyword, std::size_t N>
auto meaning_of(const Keyword (&table)[N], const Element& element, tagATTR_ID_E attribute)
{
    auto value = table[0].enValue;
    const bool known = osdKeywordFind(table, element.value(osdAttrName(attribute)).c_str(), &value);
    return known ? std::optional(value) : std::nullopt;
}

/// The attribute without which an element is no such thing.
const char* mark_of(On role)
{
    return osdAttrName(role == On::Page ? ATTR_LAYOUT : role == On::Item ? ATTR_ITEM_INDEX : ATTR_MODE_INDEX);
}

} // namespace

On role_of(const Element& element)
{
    const int depth = depth_of(element);
    return depth == 0 ? On::Page : depth % 2 == 1 ? On::Item : On::Option;
}

const char* name_of(On role) { return role == On::Page ? "Page" : role == On::Item ? "Item" : "Option"; }

std::optional<tagITEM_ATTR_E> kind_of(const Element& item) { return meaning_of(c_astAttrWord, item, ATTR_ATTR); }

std::optional<tagITEM_CTX_E> context_of(const Element& item) { return meaning_of(c_astCtxWord, item, ATTR_CTX); }

std::optional<tagPAGE_LAYOUT_E> layout_of(const Element& element)
{
    const Element* root = &element;
    while (root->parent != nullptr) {
        root = root->parent;
    }
    return meaning_of(c_astLayoutWord, *root, ATTR_LAYOUT);
}

bool is_question(const std::optional<tagPAGE_LAYOUT_E>& layout)
{
    return is_one_of(layout, {PAGE_LAYOUT_HORIZONTAL, PAGE_LAYOUT_HORIZONTAL_KETH});
}

bool has_options(const std::optional<tagITEM_ATTR_E>& kind) { return is_one_of(kind, {SUBITEM, MSG_WITH_SUBITEM}); }

bool asks(const std::optional<tagITEM_ATTR_E>& kind) { return is_one_of(kind, {CONFIRM_POP, CONFIRM_POP_BTN}); }

bool has_value(const std::optional<tagITEM_CTX_E>& context)
{
    return is_one_of(context, {NAME_VAL, NAME_BAR_VAL, NAME_IP_VAL});
}

bool has_picture(const std::optional<tagITEM_CTX_E>& context)
{
    return is_one_of(context, {ICON, ICON_TXT, ICON_TXT_KETH});
}

bool is_misplaced(const Element& element)
{
    const On role = role_of(element);
    const bool known = element.name == "Page" || element.name == "Item" || element.name == "Option";
    return known && element.name != name_of(role) && element.find(mark_of(role)) == nullptr;
}

bool is_blind(const Element& element)
{
    return role_of(element) == On::Item && kind_of(element) && !has_options(kind_of(element));
}

bool is_idle_icon(const Element& item)
{
    const bool top = item.parent == nullptr || role_of(*item.parent) == On::Page;
    return top && layout_of(item) == PAGE_LAYOUT_ICON && kind_of(item) && !asks(kind_of(item)) &&
           !is_one_of(kind_of(item), {SUBPAGE, CONFIRM});
}

bool is_unusable(const ResourceFolder& folder, const std::string& file, const std::string& subject)
{
    return std::any_of(folder.mistakes.begin(), folder.mistakes.end(), [&](const BadInput& mistake) {
        return mistake.place().file == file && mistake.words().compare(0, subject.size(), subject) == 0;
    });
}

bool are_settings_broken(const ResourceFolder& folder)
{
    return folder.broken.count("settings.json") > 0 || is_unusable(folder, "settings.json", "'settings'");
}

} // namespace pages
