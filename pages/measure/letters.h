// The characters of a text in UTF-8, which was checked when its file was read.
#pragma once

#include <string_view>

namespace pages {

/// Calls visit(code, bytes) for each character.
template <typename Visit>
void for_each_letter(std::string_view text, Visit&& visit)
{
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text[0]);
        const std::size_t wanted = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        const std::string_view bytes = text.substr(0, wanted);
        char32_t code = wanted == 1 ? lead : lead & (0xFFU >> (wanted + 1));
        for (const char next : bytes.substr(1)) {
            code = code << 6 | (static_cast<unsigned char>(next) & 0x3FU);
        }
        visit(code, bytes);
        text.remove_prefix(bytes.size());
    }
}

} // namespace pages
