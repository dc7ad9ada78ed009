// What an author meant where a page file isn't well formed.
#pragma once

#include <string_view>

namespace pages {

/// What was expected at a byte that the parser doesn't understand, by what stands around it.
const char* expected_in_xml(std::string_view text, std::size_t at);

} // namespace pages
