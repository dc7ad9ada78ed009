// What `measure` prints: the findings, and a row for each text with the pixels that it has left.
#pragma once

#include <string>
#include <vector>

#include "pages/measure/measure.h"

namespace pages {

/// Rows in columns, the heads above them.
std::string table_of(const std::vector<TextRoom>& rooms);

/// {"findings": [...], "texts": [{"page", "item", "role", "key", "text", "language", "style", "size", "width", "room",
/// "left", "line", "column"}]}, indented.
std::string to_json(const Measures& measures);

} // namespace pages
