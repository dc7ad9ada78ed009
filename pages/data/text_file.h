// Whole text files.
#pragma once

#include <filesystem>
#include <string>

namespace pages {

/// The content of a file. Throws BadInput with the file and the reason.
std::string read_text_file(const std::filesystem::path& path);

/// Writes a file as a whole: nobody sees a part of it, and the old one stays when it can't be written. Throws BadInput.
void write_text_file(const std::filesystem::path& path, const std::string& content);

} // namespace pages
