#include "pages/measure/glyphs.h"

#include <SDL_ttf.h>
#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <memory>

#include "pages/measure/letters.h"

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
    int times = 0;
};

using Uses = std::map<char32_t, Use>;

Uses uses_of(const Texts& texts)
{
    Uses uses;
    for (const auto& [key, text] : texts) {
        const Text& here = text;
        for_each_letter(text.text, [&](char32_t code, std::string_view bytes) {
            Use& use = uses.try_emplace(code, Use{&here, std::string(bytes)}).first->second;
            use.first = use.first->place.line > here.place.line ? &here : use.first;
            ++use.times;
        });
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
                const std::string times =
                    use.times == 1 ? "" : ", which is used " + std::to_string(use.times) + " times";
                findings.push_back({{"lang/" + language + ".json", use.first->place.line, use.first->place.column},
                                    Severity::Error,
                                    "missing-glyph",
                                    lacking + ": no picture of '" + use.letter + "' (" + number.data() + ")" + times,
                                    "another character"});
            }
        }
    }
    return findings;
}

} // namespace pages
