#include "pages/texts/pseudo.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string_view>
#include <system_error>
#include <utility>

#include "osd_types.h"
#include "pages/data/json_file.h"
#include "pages/data/text_file.h"
#include "pages/texts/language_file.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

constexpr const char* language_name = "Pseudo";
/// Letters that the fonts of every country have.
constexpr std::pair<char, std::string_view> accents[] = {{'A', "Å"}, {'E', "É"}, {'I', "Î"}, {'O', "Ö"}, {'U', "Ü"},
                                                         {'a', "å"}, {'e', "ë"}, {'i', "ï"}, {'o', "ö"}, {'u', "ü"},
                                                         {'n', "ñ"}, {'c', "ç"}, {'y', "ÿ"}, {'N', "Ñ"}, {'C', "Ç"}};

std::string_view accented(std::string_view letter)
{
    for (const auto& [plain, accent] : accents) {
        if (letter.size() == 1 && letter[0] == plain) {
            return accent;
        }
    }
    return letter;
}

bool is_vowel(std::string_view letter)
{
    return letter.size() == 1 && std::string_view("aeiouAEIOU").find(letter[0]) != std::string_view::npos;
}

std::vector<std::string> letters_of(const std::string& text)
{
    std::vector<std::string> letters;
    for (const char byte : text) {
        if (letters.empty() || (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) {
            letters.emplace_back();
        }
        letters.back() += byte;
    }
    return letters;
}

std::size_t bytes_of(const std::vector<std::string>& letters)
{
    std::size_t bytes = 0;
    for (const std::string& letter : letters) {
        bytes += letter.size();
    }
    return bytes;
}

/// Doubles vowels, then adds waves.
void lengthen(std::vector<std::string>& letters, std::size_t count)
{
    for (std::size_t i = 0; i < letters.size() && count > 0; ++i) {
        if (is_vowel(letters[i])) {
            letters.insert(letters.begin() + static_cast<std::ptrdiff_t>(i), letters[i]);
            ++i;
            --count;
        }
    }
    letters.insert(letters.end(), count, "~");
}

/// Where the first bracket stands behind a place.
std::size_t behind(const std::string& content, const Place& place, char bracket)
{
    std::size_t at = 0;
    for (int line = 1; line < place.line; ++line) {
        at = content.find('\n', at) + 1;
    }
    return content.find(bracket, at + static_cast<std::size_t>(std::max(place.column, 1)) - 1) + 1;
}

std::string settings_with_pseudo(const fs::path& file)
{
    std::string content = read_text_file(file);
    JsonPlaces places(file.string());
    const nlohmann::json root = parse_json_object(content, file.string(), &places);
    const auto& settings = root.at("settings");
    const auto language = std::find_if(settings.begin(), settings.end(), [](const nlohmann::json& setting) {
        return setting.value("key", "") == language_setting.key && !setting.contains("parent");
    });
    const Place options = places.of("/settings/" + std::to_string(language - settings.begin()) + "/options");
    const std::string option = std::string("\"") + language_name + "\"";
    std::pair<std::size_t, std::string> insertions[] = {
        {behind(content, options, '['), option + ", "},
        {behind(content, places.of("/languages"), '{'), option + ": " + option + ", "}};
    std::sort(std::begin(insertions), std::end(insertions), std::greater<>()); // all else stays on its line
    for (const auto& [at, words] : insertions) {
        content.insert(at, words);
    }
    return content;
}

/// The languages' names stand in all of them.
void add_name(const fs::path& file)
{
    std::string content = read_text_file(file);
    content.insert(behind(content, {}, '{'), std::string("\"") + language_name + "\": \"" + language_name + "\",");
    write_text_file(file, content);
}

void check_usable(const ResourceFolder& folder, const fs::path& copy)
{
    for (const BadInput& mistake : folder.mistakes) {
        if (mistake.place().file.empty() || mistake.place().file == "settings.json") {
            throw BadInput({(folder.root / "settings.json").string(), mistake.place().line, mistake.place().column},
                           mistake.words());
        }
    }
    if (folder.languages.count(language_name) != 0) {
        throw BadInput(folder.root.string() + " has a language Pseudo already, expected a folder without");
    }
    refuse_inside(folder, copy);
    if (fs::exists(copy) && !fs::is_empty(copy)) {
        throw BadInput(copy.string() + " isn't empty, expected a new folder");
    }
}

void copy_files(const ResourceFolder& folder, const fs::path& copy)
{
    fs::create_directories(copy);
    for (const fs::path& part :
         {page_folder(folder.root).filename(), fs::path("lang"), fs::path("pic"), fs::path("ttf")}) {
        if (fs::exists(folder.root / part)) {
            fs::copy(folder.root / part, copy / part, fs::copy_options::recursive);
        }
    }
}

} // namespace

std::string pseudo_text(const std::string& text)
{
    std::vector<std::string> letters = letters_of(text);
    const std::size_t wanted = (letters.size() * 35 + 50) / 100;
    constexpr std::size_t room = max_text_bytes - 2; // for the text and what lengthens it
    while (bytes_of(letters) > room) {
        letters.pop_back();
    }
    const std::size_t count = wanted > 0 ? wanted - 1 : 0; // the brackets are as wide as a letter
    lengthen(letters, std::min(count, room - bytes_of(letters)));
    std::size_t spare = room - bytes_of(letters);
    std::string pseudo = "[";
    for (const std::string& letter : letters) {
        const std::string_view accent = accented(letter);
        const bool fits = accent.size() - letter.size() <= spare;
        spare -= fits ? accent.size() - letter.size() : 0;
        pseudo += fits ? accent : letter;
    }
    return pseudo + "]";
}

void write_pseudo(const ResourceFolder& folder, const fs::path& copy)
{
    check_usable(folder, copy);
    const std::vector<SourceText> source = source_texts(folder);
    std::map<std::string, std::string> texts;
    for (const SourceText& text : source) {
        texts[text.key] = pseudo_text(text.english);
    }
    const std::string settings = settings_with_pseudo(folder.root / "settings.json");
    copy_files(folder, copy);
    write_text_file(copy / "settings.json", settings);
    write_text_file(copy / "lang/Pseudo.json", language_file(source, texts));
    add_name(copy / "lang" / (std::string(language_name) + ".json"));
    for (const auto& [language, ignored] : folder.languages) {
        add_name(copy / "lang" / (language + ".json"));
    }
}

} // namespace pages
