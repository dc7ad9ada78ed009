// What can be said of files before anybody looks into them: whether they can be read, and whether anybody will.
#include "pages/check/rule_tables.h"

#include <algorithm>
#include <system_error>

#include "osd_types.h"
#include "pages/check/setting_rules.h"
#include "pages/data/picture_file.h"
#include "pages/data/text_file.h"
#include "pages/grammar/page_walk.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view utf8 = "UTF-8";

/// The files of pages, languages and settings, with their content, below the folder.
template <typename Visit>
void for_each_text_file(const ResourceFolder& folder, Visit&& visit)
{
    std::set<std::string> files = folder.broken;
    for (const auto& [name, page] : folder.pages) {
        files.insert(page.file);
    }
    for (const auto& [name, texts] : folder.languages) {
        files.insert("lang/" + name + ".json");
    }
    files.insert("settings.json");
    for (const std::string& file : files) {
        try {
            visit(file, read_text_file(folder.root / file));
        } catch (const BadInput&) { // what can't be read is told by its own rule
        }
    }
}

/// Where the first byte stands that doesn't belong into UTF-8; npos without one.
std::size_t find_foreign_byte(const std::string& text)
{
    for (std::size_t at = 0; at < text.size();) {
        const auto first = static_cast<unsigned char>(text[at]);
        const std::size_t length = first < 0x80       ? 1
                                   : first >> 5 == 6  ? 2
                                   : first >> 4 == 14 ? 3
                                   : first >> 3 == 30 ? 4
                                                      : 0;
        if (length == 0 || at + length > text.size()) {
            return at;
        }
        for (std::size_t i = 1; i < length; ++i) {
            if ((static_cast<unsigned char>(text[at + i]) & 0xC0U) != 0x80U) {
                return at;
            }
        }
        at += length;
    }
    return text.npos;
}

Place place_of_byte(const std::string& file, const std::string& text, std::size_t at)
{
    const auto lines = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    const std::size_t end = at == 0 ? text.npos : text.rfind('\n', at - 1);
    return {file, static_cast<int>(lines) + 1, static_cast<int>(end == text.npos ? at : at - end - 1) + 1};
}

/// The encoding that the first line of a page names, in capitals; empty without one.
std::string declared_encoding(const std::string& text)
{
    const std::string head = text.substr(0, text.find("?>"));
    const std::size_t name = head.find("encoding=");
    const std::size_t quote = name + 9;
    if (text.compare(0, 5, "<?xml") != 0 || name == head.npos || quote >= head.size()) {
        return "";
    }
    std::string encoding = head.substr(quote + 1, head.find(head[quote], quote + 1) - quote - 1);
    std::transform(encoding.begin(), encoding.end(), encoding.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return encoding;
}

bool is_wide(const std::string& text)
{
    return text.compare(0, 2, "\xFF\xFE") == 0 || text.compare(0, 2, "\xFE\xFF") == 0 ||
           (text.size() > 1 && (text[0] == '\0' || text[1] == '\0'));
}

bool is_in_other_encoding(const std::string& text)
{
    const std::string declared = declared_encoding(text);
    return is_wide(text) || find_foreign_byte(text) != text.npos || (!declared.empty() && declared != utf8);
}

void find_other_encodings(const ResourceFolder& folder, const Complain& complain)
{
    static const std::string remedy = "UTF-8; save the file as UTF-8";
    for_each_text_file(folder, [&](const std::string& file, const std::string& text) {
        const std::size_t at = find_foreign_byte(text);
        if (is_wide(text)) {
            complain({file, 1, 1}, "the file is written in UTF-16", remedy);
        } else if (at != text.npos) {
            complain(place_of_byte(file, text, at), "a letter here is in another encoding", remedy);
        } else if (is_in_other_encoding(text)) {
            complain({file, 1, 1}, "encoding '" + declared_encoding(text) + "' is named",
                     R"(encoding="UTF-8", as the menu reads the file)");
        }
    });
}

void find_byte_order_marks(const ResourceFolder& folder, const Complain& complain)
{
    for_each_text_file(folder, [&](const std::string& file, const std::string& text) {
        if (has_utf8_mark(text)) {
            complain({file, 1, 1}, utf8_mark_words, utf8_mark_remedy);
        }
    });
}

bool is_in_folder(const BadInput& mistake, const std::string& name)
{
    return mistake.place().file.compare(0, name.size(), name) == 0;
}

/// What was expected stands in the words.
void tell(const Complain& complain, const Place& place, const std::string& words)
{
    static const std::string mark = ", expected ";
    const std::size_t at = words.find(mark);
    complain(place, words.substr(0, at), at == words.npos ? "" : words.substr(at + mark.size()));
}

/// The mistakes in the files of a folder.
void tell_mistakes(const ResourceFolder& folder, const std::string& name, const Complain& complain)
{
    for (const BadInput& mistake : folder.mistakes) {
        std::error_code gone;
        const fs::path file = folder.root / mistake.place().file;
        const bool other = folder.broken.count(mistake.place().file) > 0 && fs::is_regular_file(file, gone) &&
                           is_in_other_encoding(read_text_file(file));
        if (is_in_folder(mistake, name) && !other) {
            tell(complain, mistake.place(), mistake.words());
        }
    }
}

std::string page_folder_name(const ResourceFolder& folder)
{
    return page_folder(folder.root).filename().string() + "/";
}

void find_bad_xml(const ResourceFolder& folder, const Complain& complain)
{
    tell_mistakes(folder, page_folder_name(folder), complain);
}

void find_bad_texts(const ResourceFolder& folder, const Complain& complain)
{
    tell_mistakes(folder, "lang/", complain);
}

void find_bad_settings(const ResourceFolder& folder, const Complain& complain)
{
    tell_mistakes(folder, "settings.json", complain);
}

void find_nothing(const ResourceFolder& folder, const Complain& complain)
{
    if (folder.pages.empty()) {
        complain({page_folder_name(folder)}, "no page", "files named NAME_page.xml");
    }
    const bool broken = std::any_of(folder.mistakes.begin(), folder.mistakes.end(),
                                    [](const BadInput& mistake) { return is_in_folder(mistake, "lang/"); });
    if (folder.languages.empty() && !broken) {
        complain({"lang/"}, "no language", "files named LANGUAGE.json");
    }
    if (folder.pictures.empty()) {
        complain({"pic/"}, "no picture", "files named NAME.svg");
    }
}

struct ReadFolder {
    std::string name;
    const char* expected;
    bool (*is_read)(const ResourceFolder& folder, const fs::path& file);
};

/// Those that are meant to be pages, languages or pictures are told of by other rules.
void find_strays(const ResourceFolder& folder, const Complain& complain)
{
    const auto is_page = [](const ResourceFolder&, const fs::path& file) { return is_page_file(file); };
    const auto is_language = [](const ResourceFolder& all, const fs::path& file) {
        const std::vector<std::string> without = languages_without_file(all);
        return file.extension() == ".json" || std::count(without.begin(), without.end(), file.stem().string()) > 0;
    };
    const auto is_picture = [](const ResourceFolder& all, const fs::path& file) {
        const auto known = all.pictures.find(file.stem().string());
        return file.extension() == ".svg" || file.extension() == ".bmp" ||
               (known != all.pictures.end() && known->second.filename() == file.filename());
    };
    const ReadFolder folders[] = {{page_folder_name(folder), "a name that ends with _page.xml", is_page},
                                  {"lang/", "a name that ends with .json", is_language},
                                  {"pic/", "a name that ends with .svg", is_picture}};
    for (const ReadFolder& one : folders) {
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(folder.root / one.name, none)) {
            const std::string file = one.name + entry.path().filename().string();
            if (!is_of_editor(file) && !one.is_read(folder, entry.path()) && folder.broken.count(file) == 0) {
                complain({file}, "nobody reads this file", one.expected);
            }
        }
    }
    std::error_code none;
    if (page_folder_name(folder) != "menu/" && fs::is_directory(folder.root / "menu", none)) {
        complain({"menu/"}, "nobody reads this folder", "all pages in " + page_folder_name(folder));
    }
}

void find_long_names(const ResourceFolder& folder, const Complain& complain)
{
    const auto judge = [&](const std::string& file, const std::string& name) {
        if (name.size() >= OSD_TEXT_LEN) {
            complain({file}, "the name " + words_of_length(name), "at most 31 bytes");
        }
    };
    for (const auto& [name, page] : folder.pages) {
        judge(page.file, name);
        if (!is_page_file(page.file)) {
            complain({page.file}, "nobody reads a file of this name", name + "_page.xml");
        }
    }
    for (const auto& [name, file] : folder.pictures) {
        judge(file.lexically_relative(folder.root).string(), name);
    }
}

/// Why a picture can't be drawn: where a drawing isn't well formed, in the words for page files, as those of the drawing
/// library are for programmers. A DOCTYPE is no mistake in a drawing.
BadInput picture_mistake(const fs::path& file, const BadInput& told)
{
    std::vector<BadInput> mistakes;
    const std::string text = file.extension() == ".svg" && told.place().line > 0 ? read_text_file(file) : "<svg/>";
    (void)read_page(file, text, mistakes);
    return mistakes.empty() || text.find("<!DOCTYPE") != text.npos
               ? told
               : BadInput(mistakes.front().place(), "no picture: " + mistakes.front().words());
}

void find_bad_pictures(const ResourceFolder& folder, const Complain& complain)
{
    for (const auto& [name, file] : folder.pictures) {
        const std::string below = file.lexically_relative(folder.root).string();
        try {
            const std::vector<std::uint32_t> pixels = read_picture(file).pixels;
            if (std::none_of(pixels.begin(), pixels.end(), [](std::uint32_t pixel) { return pixel >> 24 != 0; })) {
                complain({below}, "nothing is seen of the picture",
                         "shapes with a fill or a stroke in it; pictures in it aren't drawn");
            }
        } catch (const BadInput& told) {
            const BadInput mistake = picture_mistake(file, told);
            tell(complain, {below, mistake.place().line, mistake.place().column}, mistake.words());
        }
    }
}

} // namespace

const std::vector<Rule>& file_rules()
{
    static const std::vector<Rule> rules = {
        {"encoding", Severity::Error, "Files are written in UTF-8.", find_other_encodings},
        {"byte-order-mark", Severity::Warning, "Files begin without a byte order mark.", find_byte_order_marks},
        {"xml", Severity::Error, "A page file is well formed XML.", find_bad_xml},
        {"text", Severity::Error, "A language file holds keys and texts of 1 to 31 bytes.", find_bad_texts},
        {"setting", Severity::Error, "settings.json holds settings, facts, zones and languages that can be used.",
         find_bad_settings},
        {"no-file", Severity::Error, "There are pages, languages and pictures.", find_nothing},
        {"stray-file", Severity::Warning, "The folders hold nothing but pages, languages and pictures.", find_strays},
        {"file-name", Severity::Error,
         "Names of pages and pictures have at most 31 bytes, in the letters that the menu looks for.", find_long_names},
        {"picture", Severity::Error, "A picture can be drawn.", find_bad_pictures},
    };
    return rules;
}

} // namespace pages
