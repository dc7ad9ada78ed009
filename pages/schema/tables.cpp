// The table of attributes in Markdown.
#include "pages/data/errors.h"
#include "pages/schema/holds.h"
#include "pages/schema/schema.h"

namespace pages {
namespace {

constexpr const char* begin_mark = "<!-- schema -->";
constexpr const char* end_mark = "<!-- end of schema -->";

std::string code(const std::string& word) { return "`" + word + "`"; }

std::string attribute_table(const ElementWords& element)
{
    std::string table = std::string("| ") + element.name + " | Value | Needed by | |\n|---|---|---|---|\n";
    for (const AttributeUse& use : attribute_uses()) {
        if (use.on == element.on) {
            table += "| " + code(use.name()) + " | " + described(use.holds).value + " | " + use.needed + " | " +
                     use.meaning + " |\n";
        }
    }
    return table;
}

std::string word_table(const AttributeUse& use)
{
    std::string table = "| " + code(use.name()) + " | |\n|---|---|\n";
    for (const Word& word : use.words) {
        table += "| " + code(word.word) + " | " + word.meaning + " |\n";
    }
    return table;
}

std::string value_table()
{
    std::string table = "| Value | |\n|---|---|\n";
    for (const HoldsWords& row : holds_words) {
        table += std::string("| ") + row.value + " | " + row.meaning + " |\n";
    }
    return table;
}

} // namespace

std::string schema_tables()
{
    std::string tables;
    for (const ElementWords& element : element_words) {
        tables += attribute_table(element) + "\n";
    }
    tables += value_table();
    for (const AttributeUse& use : attribute_uses()) {
        if (use.holds == Holds::Word) {
            tables += "\n" + word_table(use);
        }
    }
    return tables;
}

std::string with_schema_tables(const std::string& document, const std::string& file)
{
    const std::size_t begin = document.find(begin_mark);
    const std::size_t end = document.find(end_mark, begin == document.npos ? 0 : begin);
    if (begin == document.npos || end == document.npos) {
        throw BadInput(Place{file},
                       std::string("the tables have no place, expected lines ") + begin_mark + " and " + end_mark);
    }
    return document.substr(0, begin) + begin_mark + "\n" + schema_tables() + document.substr(end);
}

} // namespace pages
