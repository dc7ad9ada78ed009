// What the values of attributes are, in the schema and in words.
#pragma once

#include "pages/grammar/attributes.h"

namespace pages {

struct HoldsWords {
    Holds holds;
    const char* type;    ///< in the schema; words have types of their own
    const char* value;   ///< in a table
    const char* meaning; ///< a sentence that every attribute of the kind shares
};

constexpr HoldsWords holds_words[] = {
    {Holds::Word, "", "word", "One of some words."},
    {Holds::Number, "xs:int", "number", "A whole number."},
    {Holds::Flag, "xs:string", "anything", "Counts by being there."},
    {Holds::Label, "Key", "text", "The key of a text in lang/."},
    {Holds::Key, "Key", "key", "A key, which has a text in lang/."},
    {Holds::Page, "Name", "page", "The name of a page: the file pages/NAME_page.xml."},
    {Holds::Picture, "Name", "picture", "The name of a picture: the file pic/NAME.svg."},
    {Holds::Zone, "Key", "zone", "A zone in settings.json, which leads to the parent of a setting."},
    {Holds::Literal, "Literal", "letters", "Letters, shown as they stand."},
};

constexpr const HoldsWords& described(Holds holds)
{
    for (const HoldsWords& row : holds_words) {
        if (row.holds == holds) {
            return row;
        }
    }
    return holds_words[0];
}

struct ElementWords {
    On on;
    const char* name;
    const char* child;
    const char* meaning;
};

constexpr ElementWords element_words[] = {
    {On::Page, "Page", "Item", "A page of the menu: the outermost element. It holds items."},
    {On::Item, "Item", "Option", "A row, an icon, a button or an answer. It may hold options."},
    {On::Option, "Option", "Item", "An option of an item, with the items that show only while it is chosen."},
};

} // namespace pages
