#include "pages/measure/glyphs.h"

#include <SDL_ttf.h>
#include <array>
#include <cstdio>
#include <functional>
#include <memory>
#include <unordered_map>

#include "pages/grammar/cases.h"
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

using Said = std::function<void(const Place& place, const std::string& key, const std::string& text)>;

/// Whatever the menu can draw: the texts, what pages and facts say literally, and what settings hold.
void for_each_said(const ResourceFolder& folder, const Said& say)
{
    for (const auto& [language, texts] : folder.languages) {
        for (const auto& [key, text] : texts) {
            say(text.place, key, text.text);
        }
    }
    for_each_use(folder, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
        if (use.holds == Holds::Literal) {
            say(attribute.place, attribute.name, attribute.value);
        }
    });
    for (const auto& [name, fact] : folder.definitions.facts) {
        Place place = folder.definitions.places.of("/facts/" + name);
        place.file = "settings.json";
        say(place, name, fact);
    }
    for (const auto& [id, setting] : folder.definitions.settings) {
        if (setting.kind == SettingKind::Text) {
            say(setting.place, id.key, setting.default_text);
        }
    }
}

/// The names of the fonts that lack a character.
std::string lacking(const std::vector<Font>& fonts, char32_t code)
{
    std::string names;
    for (const Font& font : fonts) {
        const bool lacks = font.font != nullptr && TTF_GlyphIsProvided32(font.font.get(), code) == 0;
        names += lacks ? (names.empty() ? "" : ", ") + font.name : "";
    }
    return names;
}

std::string words_of_code(char32_t code)
{
    std::array<char, 16> number{};
    (void)std::snprintf(number.data(), number.size(), "U+%04X", static_cast<unsigned>(code));
    return number.data();
}

} // namespace

std::vector<Finding> missing_fonts(const ResourceFolder& folder)
{
    std::vector<Finding> findings;
    for (const char* name : font_files) {
        if (std::error_code ignored; !std::filesystem::exists(folder.fonts / name, ignored)) {
            findings.push_back({{"ttf/"},
                                Severity::Error,
                                "font",
                                std::string("without ") + name + " nothing is drawn and measured",
                                "it in " + folder.fonts.string() + ", or another folder with --fonts",
                                name});
        }
    }
    return findings;
}

std::vector<Finding> missing_glyphs(const ResourceFolder& folder)
{
    std::vector<Font> fonts;
    for (const char* name : font_files) {
        fonts.push_back({name, std::unique_ptr<TTF_Font, Close>(TTF_OpenFont((folder.fonts / name).c_str(), 16))});
    }
    std::vector<Finding> findings;
    std::unordered_map<char32_t, std::string> known;
    for_each_said(folder, [&](const Place& place, const std::string& key, const std::string& text) {
        for_each_letter(text, [&](char32_t code, std::string_view bytes) {
            const auto [found, is_new] = known.try_emplace(code);
            if (is_new) {
                found->second = lacking(fonts, code);
            }
            if (!found->second.empty()) {
                findings.push_back(
                    {place, Severity::Error, "missing-glyph",
                     found->second + ": no picture of '" + std::string(bytes) + "' (" + words_of_code(code) + ")",
                     "another character", key});
            }
        });
    });
    return findings;
}

} // namespace pages
