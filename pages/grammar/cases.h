// When attributes are needed, and when they are read.
#pragma once

#include <vector>

#include "pages/grammar/attributes.h"
#include "pages/grammar/page_walk.h"

namespace pages {

/// When an attribute matters; asked about elements whose kind, context and layout are known.
struct Case {
    tagATTR_ID_E id;
    On on;
    bool (*holds)(const Element& element);
    const char* words;
};

/// The attributes that an element needs and hasn't, with the words of their cases.
std::vector<Case> missing_in(const Element& element);

/// What goes with a kind of item.
struct Pair {
    tagITEM_ATTR_E kind;
    tagITEM_CTX_E context;
    tagITEM_VAL_TYPE_E type; ///< where there is a value; else any
};

inline constexpr Pair pairs[] = {{CONST_TXT, NAME, OPTTXT},
                                 {CONST_TXT, NAME_VAL, OPTTXT},
                                 {CONST_TXT, NAME_IP_VAL, OPTTXT},
                                 {STATUS, NAME_VAL, OPTTXT},
                                 {STATUS, NAME_IP_VAL, OPTTXT},
                                 {COMMON, NAME_VAL, OPTTXT},
                                 {COMMON, NAME_BAR_VAL, NUMERICAL},
                                 {KEY_WITH_MSG, NAME_VAL, OPTTXT},
                                 {KEY_WITH_MSG, NAME_BAR_VAL, NUMERICAL},
                                 {SUBITEM, NAME_VAL, OPTTXT},
                                 {MSG_WITH_SUBITEM, NAME_VAL, OPTTXT},
                                 {EDITABLE, NAME_IP_VAL, EDITTXT},
                                 {CONFIRM, NAME, OPTTXT},
                                 {CONFIRM, NAME_VAL, OPTTXT},
                                 {CONFIRM_POP, NAME_VAL, OPTTXT},
                                 {CONFIRM_POP_BTN, NAME, OPTTXT},
                                 {SUBPAGE, NAME, OPTTXT}};

/// Whether what an item shows doesn't go with its kind, on a page that isn't one of icons: either may be meant.
bool has_odd_context(const Element& item);

/// Where the menu reads an attribute; null for all elements of its name.
const Case* case_of_reading(const Element& element, const AttributeUse& use);
/// Whether the menu looks at an attribute of an element of this kind and layout.
bool is_read(const Element& element, const AttributeUse& use);

/// Calls visit(element, attribute, use) for the attributes that the menu reads of an element and of all below it.
template <typename Visit>
void for_each_use(const Element& root, Visit&& visit)
{
    for_each_read(root, [&](const Element& element) {
        for (const Attribute& attribute : element.attributes) {
            const AttributeUse* use = find_use(role_of(element), attribute.name);
            if (use != nullptr && is_read(element, *use)) {
                visit(element, attribute, *use);
            }
        }
    });
}

/// The same for all pages that can be read.
template <typename Visit>
void for_each_use(const ResourceFolder& folder, Visit&& visit)
{
    for_each_page(folder, [&](const PageFile&, const Element& root) { for_each_use(root, visit); });
}

} // namespace pages
