// The texts of one language.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "osd_types.h"
#include "pages/data/allowance.h"
#include "pages/data/errors.h"

namespace pages {

/// What a text of the menu, and a key of one, can hold.
constexpr std::size_t max_text_bytes = OSD_TEXT_LEN - 1;

struct Text {
    std::string text;
    Place place;
};

/// By key.
using Texts = std::map<std::string, Text>;

/// Reads "<folder>/<Language>.json", a flat file of key to text; what can't be used is left out, with a mistake for
/// each. Throws BadInput when nothing can be used.
Texts read_texts(const std::filesystem::path& path, std::vector<BadInput>& mistakes,
                 std::vector<Allowance>& allowances);
/// The same, throws the first mistake.
Texts load_texts(const std::filesystem::path& path);

/// "'Müdürlük' has 11 bytes (8 letters)": how messages tell the length of a text.
std::string words_of_length(const std::string& text);

} // namespace pages
