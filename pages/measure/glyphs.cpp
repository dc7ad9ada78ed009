#include "pages/measure/glyphs.h"

#include <SDL_ttf.h>
#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <memory>

namespace pages {
namespace {

struct Close {
    void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
};

struct Font {
    std::string name;
    std::unique_ptr<TTF_Font, Close> font;
};

struct Use {
    const Text* first; ///< text that has the character
    std::string letter;
    int texts = 0;
};

using Uses = std::map<char32_t, Use>;

/// The characters of the texts. What isn't UTF-8 was refused when the file was read.
Uses uses_of(const Texts& texts)
{
    Uses uses;
    for (const auto& [key, text] : texts) {
        const std::string& bytes = text.text;
        for (std::size_t i = 0; i < bytes.size();) {
            const auto lead = static_cast<unsigned char>(bytes[i]);
            const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
            char32_t code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
            for (std::size_t j = 1; j < length && i + j < bytes.size(); ++j) {
                code = code << 6 | (static_cast<unsigned char>(bytes[i + j]) & 0x3FU);
            }
            Use& use = uses.try_emplace(code, Use{&text, bytes.substr(i, length)}).first->second;
            use.first = use.first->place.line > text.place.line ? &text : use.first;
            ++use.texts;
            i += length;
        }
    }
    return uses;
}

} // namespace

std::vector<Finding> missing_glyphs(const ResourceFolder& folder)
{
    std::vector<Font> fonts;
    for (const char* name : {"font.ttf", "bold_font.ttf", "tcfont.ttf"}) {
        fonts.push_back({name, std::unique_ptr<TTF_Font, Close>(TTF_OpenFont((folder.fonts / name).c_str(), 16))});
    }
    std::vector<Finding> findings;
    for (const auto& [language, texts] : folder.languages) {
        for (const auto& [code, use] : uses_of(texts)) {
            std::string lacking;
            for (const Font& font : fonts) {
                const bool lacks = font.font != nullptr && TTF_GlyphIsProvided32(font.font.get(), code) == 0;
                lacking += lacks ? (lacking.empty() ? "" : ", ") + font.name : "";
            }
            if (!lacking.empty()) {
                std::array<char, 16> number{};
                (void)std::snprintf(number.data(), number.size(), "U+%04X", static_cast<unsigned>(code));
                const std::string times = use.texts == 1 ? "" : ", which is used " + std::to_string(use.texts) + " times";
                findings.push_back({{"lang/" + language + ".json", use.first->place.line, use.first->place.column},
                                    Severity::Error, "missing-glyph",
                                    lacking + ": no picture of '" + use.letter + "' (" + number.data() + ")" + times,
                                    "another character"});
            }
        }
    }
    return findings;
}

} // namespace pages
