// The page files of the menu.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "simulator/base/data.h"

namespace tinyxml2 {
class XMLDocument;
}

namespace sim {

/// Reads a page file; null, with file and line in the log, when it is missing or not well formed.
std::unique_ptr<tinyxml2::XMLDocument> load_page_document(const std::filesystem::path& path);

/// A page from a text; null when it isn't well formed.
std::unique_ptr<tinyxml2::XMLDocument> parse_page_document(const std::string& text);

/// The names of the pages below a resource folder, sorted.
std::vector<std::string> page_names(const std::filesystem::path& resources);

/// Throws BadInput, which lists the pages, when the resources have none of this name.
void require_page(const std::string& name, const std::filesystem::path& resources);

} // namespace sim
