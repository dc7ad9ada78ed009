#include "pages/grammar/page_walk.h"

#include <algorithm>
#include <map>

#include "menu/core/keyword.h"
#include "menu/core/words.h"

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

/// What an item says of itself, whatever the page's layout.
Arrangement made_for(const Element& item)
{
    if (has_picture(context_of(item)) || item.find(osdAttrName(ATTR_PIC)) != nullptr) {
        return Arrangement::Icons;
    }
    const std::string key = item.value(osdAttrName(ATTR_ITEM_INDEX));
    const bool answers = key == OSD_KEY_NO || key == OSD_KEY_YES || item.find(osdAttrName(ATTR_ITEM_CNT)) != nullptr ||
                         item.find(osdAttrName(ATTR_ITEM_INDEX_ON_LINE)) != nullptr;
    return answers ? Arrangement::Question : Arrangement::List;
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

const Element& page_of(const Element& element)
{
    const Element* root = &element;
    while (root->parent != nullptr) {
        root = root->parent;
    }
    return *root;
}

std::optional<tagPAGE_LAYOUT_E> layout_of(const Element& element)
{
    const Element& page = page_of(element);
    return contradiction_of(page) ? std::nullopt : meaning_of(c_astLayoutWord, page, ATTR_LAYOUT);
}

Arrangement arrangement_of(tagPAGE_LAYOUT_E layout)
{
    return layout == PAGE_LAYOUT_ICON ? Arrangement::Icons
           : is_question(layout)      ? Arrangement::Question
                                      : Arrangement::List;
}

std::optional<Arrangement> contradiction_of(const Element& page)
{
    const auto layout = meaning_of(c_astLayoutWord, page, ATTR_LAYOUT);
    std::map<Arrangement, std::size_t> items; // made for each
    for (const auto& item : page.children) {
        const Arrangement made = made_for(*item);
        if (!layout || made == arrangement_of(*layout)) {
            return std::nullopt; // at the first that fits: the rules ask for each element
        }
        ++items[made];
    }
    for (const auto& [made, count] : items) {
        if (count > 1 && 2 * count > page.children.size()) {
            return made;
        }
    }
    return std::nullopt;
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
