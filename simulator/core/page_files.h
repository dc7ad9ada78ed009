// The page files of the menu.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace tinyxml2 {
class XMLDocument;
}

namespace sim {

/// Reads a page file; null, with file and line in the log, when it is missing or not well formed.
std::unique_ptr<tinyxml2::XMLDocument> load_page_document(const std::filesystem::path& path);

/// The name of the page in a page file.
std::string page_name(const std::filesystem::path& path);

/// The names of the pages below a resource folder, sorted.
std::vector<std::string> page_names(const std::filesystem::path& resources);

} // namespace sim
