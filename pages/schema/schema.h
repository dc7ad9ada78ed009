// What can be written in a page file, for editors and for the documents. All of it comes from the table of attributes.
#pragma once

#include <string>

namespace pages {

/// The schema of page files (XSD 1.0), with a sentence for every element, attribute and word.
std::string schema();

/// The attributes and their words as tables of a Markdown document.
std::string schema_tables();

/// A document with new tables between its marks, "<!-- schema -->" and "<!-- end of schema -->" on lines of their own.
/// Throws BadInput, with the name of its file, when it has none.
std::string with_schema_tables(const std::string& document, const std::string& file);

} // namespace pages
