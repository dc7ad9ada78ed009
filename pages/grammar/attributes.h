// What can be written in a page file: the library's attributes and words, each with its use and a sentence. The rules, the
// schema and the documents read this table; names and words come from the tables that the parser reads.
#pragma once

#include <string>
#include <vector>

#include "menu/core/attr.h"

namespace pages {

enum class On { Page, Item, Option };

/// What an attribute's value is.
enum class Holds { Word, Number, Flag, Label, Key, Page, Picture, Zone, Literal };

struct Word {
    const char* word;
    const char* meaning;
};

struct AttributeUse {
    tagATTR_ID_E id;
    On on;
    Holds holds;
    const char* needed; ///< who must have it, in words; empty where nobody must
    const char* meaning;
    std::vector<Word> words; ///< of Holds::Word, in the order of the parser's table

    const char* name() const;
    std::vector<std::string> word_list() const;
};

/// By element, in the order of the documents.
const std::vector<AttributeUse>& attribute_uses();

/// Null for an attribute that such an element doesn't have.
const AttributeUse* find_use(On on, const std::string& attribute);

} // namespace pages
