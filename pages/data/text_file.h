// Whole text files.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace pages {

/// What some editors put before UTF-8, and what is told of a file that begins with it.
constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
constexpr const char* utf8_mark_words = "the file begins with a byte order mark";
constexpr const char* utf8_mark_remedy = "none; save the file as UTF-8 without byte order mark (BOM)";
inline bool has_utf8_mark(std::string_view text) { return text.substr(0, utf8_mark.size()) == utf8_mark; }

/// Whether an editor keeps a copy or a lock under such a name.
bool is_of_editor(const std::filesystem::path& path);

/// The content of a file. Throws BadInput with the file and the reason.
std::string read_text_file(const std::filesystem::path& path);

/// Writes a file as a whole: nobody sees a part of it, and the old one stays when it can't be written. Throws BadInput.
void write_text_file(const std::filesystem::path& path, const std::string& content);

} // namespace pages
