// What the rules ask of pages and of the elements in them.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "osd_records.h"
#include "pages/data/resource_folder.h"
#include "pages/grammar/attributes.h"

namespace pages {

/// What an element is to the menu, which goes by places: the outermost is the page, then items and options take turns.
On role_of(const Element& element);
/// "Page", "Item" or "Option".
const char* name_of(On role);

/// The kind and the context of an item; none for a word that the menu doesn't know.
std::optional<tagITEM_ATTR_E> kind_of(const Element& item);
std::optional<tagITEM_CTX_E> context_of(const Element& item);
/// The page on which an element stands.
const Element& page_of(const Element& element);
/// The layout of the page on which an element stands; none for a word that the menu doesn't know, nor for a layout that
/// contradicts the items: one rule tells of each, the others can't say more.
std::optional<tagPAGE_LAYOUT_E> layout_of(const Element& element);

/// How a layout arranges items, and what an item is made for.
enum class Arrangement { Icons, List, Question };
Arrangement arrangement_of(tagPAGE_LAYOUT_E layout);

/// What most items of a page are made for, where its layout is another one and fits none of them.
std::optional<Arrangement> contradiction_of(const Element& page);

/// Whether there is a value, one of these.
template <typename Value>
bool is_one_of(const std::optional<Value>& value, std::initializer_list<Value> wanted)
{
    return value && std::find(wanted.begin(), wanted.end(), *value) != wanted.end();
}

bool is_question(const std::optional<tagPAGE_LAYOUT_E>& layout);
bool has_options(const std::optional<tagITEM_ATTR_E>& kind);
bool asks(const std::optional<tagITEM_ATTR_E>& kind);
bool has_value(const std::optional<tagITEM_CTX_E>& context);
bool has_picture(const std::optional<tagITEM_CTX_E>& context);

/// Whether an element of a known name stands where another one belongs; one rule tells of it, the others pass it over.
bool is_misplaced(const Element& element);
/// Whether the menu doesn't look at what is below an item: its kind has no options.
bool is_blind(const Element& element);

/// Whether home does nothing on an item of a page of icons.
bool is_idle_icon(const Element& item);

/// Calls visit(element) for the element and all below it that the menu reads.
template <typename Visit>
void for_each_read(const Element& element, Visit&& visit)
{
    if (is_misplaced(element)) {
        return;
    }
    visit(element);
    if (!is_blind(element)) {
        for (const auto& child : element.children) {
            for_each_read(*child, visit);
        }
    }
}

/// Calls visit(page, root) for the pages that can be read.
template <typename Visit>
void for_each_page(const ResourceFolder& folder, Visit&& visit)
{
    for (const auto& [name, page] : folder.pages) {
        if (page.root != nullptr) {
            visit(page, *page.root);
        }
    }
}

/// Calls visit(element) for what the menu reads of all pages.
template <typename Visit>
void for_each_read(const ResourceFolder& folder, Visit&& visit)
{
    for_each_page(folder, [&](const PageFile&, const Element& root) { for_each_read(root, visit); });
}

/// Calls visit(item) for what the menu reads of the items of all pages.
template <typename Visit>
void for_each_item(const ResourceFolder& folder, Visit&& visit)
{
    for_each_read(folder, [&](const Element& element) {
        if (role_of(element) == On::Item) {
            visit(element);
        }
    });
}

/// Whether something in a file couldn't be used that begins with this subject, as "'key'" or "setting 'key'".
bool is_unusable(const ResourceFolder& folder, const std::string& file, const std::string& subject);
/// Whether the settings can't be used at all, or a member of theirs: what follows from it is not told.
bool are_settings_broken(const ResourceFolder& folder);

} // namespace pages
