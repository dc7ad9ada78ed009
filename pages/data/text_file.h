// Whole text files.
#pragma once

#include <filesystem>
#include <string>

namespace pages {

/// The content of a file. Throws BadInput with the file and the reason.
std::string read_text_file(const std::filesystem::path& path);

} // namespace pages
