// Whole text files.
#pragma once

#include <filesystem>
#include <string>

namespace pages {

/// Whether an editor keeps a copy or a lock under such a name.
bool is_of_editor(const std::filesystem::path& path);

/// The content of a file. Throws BadInput with the file and the reason.
std::string read_text_file(const std::filesystem::path& path);

/// Writes a file as a whole: nobody sees a part of it, and the old one stays when it can't be written. Throws BadInput.
void write_text_file(const std::filesystem::path& path, const std::string& content);

} // namespace pages
