#include "pages/texts/po_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <gettext-po.h>
#include <memory>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "pages/data/text_file.h"

namespace pages {
namespace {

using Iterator = std::unique_ptr<struct po_message_iterator, decltype(&po_message_iterator_free)>;
using Letters = std::unique_ptr<char, decltype(&std::free)>;

Iterator messages_of(po_file_t file) { return {po_message_iterator(file, nullptr), po_message_iterator_free}; }

struct Close {
    void operator()(po_file_t file) const
    {
        const Iterator iterator = messages_of(file);
        while (po_message_t message = po_next_message(iterator.get())) {
            po_message_set_msgctxt(message, nullptr); // po_file_free forgets it
        }
        po_file_free(file);
    }
};
using File = std::unique_ptr<struct po_file, Close>;

constexpr const char* language_field = "X-Menu-Language";

/// Codes by which translators' programs know the languages.
constexpr std::pair<const char*, const char*> codes[] = {{"Arabic", "ar"},
                                                         {"Czech", "cs"},
                                                         {"Danish", "da"},
                                                         {"Dutch", "nl"},
                                                         {"Finnish", "fi"},
                                                         {"French", "fr"},
                                                         {"German", "de"},
                                                         {"Greek", "el"},
                                                         {"Italian", "it"},
                                                         {"Japanese", "ja"},
                                                         {"Korean", "ko"},
                                                         {"Norwegian", "nb"},
                                                         {"Polish", "pl"},
                                                         {"Portuguese", "pt"},
                                                         {"Russian", "ru"},
                                                         {"Spanish", "es"},
                                                         {"Swedish", "sv"},
                                                         {"Turkish", "tr"},
                                                         {"Ukrainian", "uk"},
                                                         {"SimplifiedChinese", "zh_CN"},
                                                         {"TraditionalChinese", "zh_TW"}};

std::string code_of(const std::string& language)
{
    for (const auto& [name, code] : codes) {
        if (language == name) {
            return code;
        }
    }
    return "";
}

/// The library behind gives its handlers no argument.
std::vector<BadInput>* heard = nullptr;

/// What the library complains of goes into the list, while this lives.
class Hearing {
public:
    explicit Hearing(std::vector<BadInput>& mistakes) { heard = &mistakes; }
    ~Hearing() { heard = nullptr; }
    Hearing(const Hearing&) = delete;
    Hearing& operator=(const Hearing&) = delete;
};

Place place_of(const char* file, std::size_t line, std::size_t column)
{
    constexpr auto unknown = static_cast<std::size_t>(-1);
    if (file == nullptr || line == unknown) {
        return {file == nullptr ? "" : file};
    }
    return {file, static_cast<int>(line), column == unknown ? 0 : static_cast<int>(column)};
}

std::string on_one_line(std::string words)
{
    while (!words.empty() && words.back() == '\n') {
        words.pop_back();
    }
    std::replace(words.begin(), words.end(), '\n', ' ');
    return words;
}

void hear(int severity, po_message_t /*message*/, const char* file, std::size_t line, std::size_t column,
          int /*multiline*/, const char* words)
{
    const BadInput mistake(place_of(file, line, column), on_one_line(words));
    if (severity == PO_SEVERITY_FATAL_ERROR) { // the handler must not return
        throw BadInput(mistake);
    }
    if (severity == PO_SEVERITY_ERROR) { // warnings are of encodings, which are judged by the header
        heard->push_back(mistake);
    }
}

/// Of two entries; the library tells where the second stands.
void hear_both(int severity, po_message_t message, const char* file, std::size_t line, std::size_t column,
               int multiline, const char* words, po_message_t other, const char* /*other_file*/,
               std::size_t /*other_line*/, std::size_t /*other_column*/, int /*other_multiline*/,
               const char* /*other_words*/)
{
    const char* key = other == nullptr ? nullptr : po_message_msgctxt(other);
    const std::string both = words + (key == nullptr ? "" : ": '" + std::string(key) + "' has an entry above already");
    hear(severity, message, file, line, column, multiline, both.c_str());
}

constexpr po_xerror_handler handler = {hear, hear_both};

std::string letters(const char* text) { return text == nullptr ? "" : text; }

std::string field_of(const std::string& header, const char* field)
{
    const Letters value(po_header_field(header.c_str(), field), std::free);
    return letters(value.get());
}

/// The fields of a header and those that it lacks; translators' programs fill in the empty ones.
std::string completed(std::string header, const std::string& language)
{
    const std::pair<const char*, std::string> fields[] = {{"Project-Id-Version", "camera menu"},
                                                          {"PO-Revision-Date", ""},
                                                          {"Last-Translator", ""},
                                                          {"Language-Team", ""},
                                                          {"Language", code_of(language)},
                                                          {"MIME-Version", "1.0"},
                                                          {"Content-Type", "text/plain; charset=UTF-8"},
                                                          {"Content-Transfer-Encoding", "8bit"},
                                                          {language_field, language}};
    for (const auto& [field, value] : fields) {
        if (field_of(header, field).empty()) {
            const Letters longer(po_header_set_field(header.c_str(), field, value.c_str()), std::free);
            header = letters(longer.get());
        }
    }
    return header;
}

void insert(po_message_iterator_t iterator, const PoEntry& entry)
{
    po_message_t message = po_message_create();
    po_message_set_msgctxt(message, entry.key.empty() ? nullptr : entry.key.c_str());
    po_message_set_msgid(message, entry.english.c_str());
    po_message_set_msgstr(message, entry.translation.c_str());
    po_message_set_extracted_comments(message, entry.comment.c_str());
    po_message_set_comments(message, entry.remark.c_str());
    po_message_set_fuzzy(message, entry.fuzzy ? 1 : 0);
    po_message_set_obsolete(message, entry.obsolete ? 1 : 0);
    po_message_set_prev_msgid(message, entry.old_english.empty() ? nullptr : entry.old_english.c_str());
    for (const Place& use : entry.uses) {
        po_message_add_filepos(message, use.file.c_str(), static_cast<std::size_t>(use.line));
    }
    po_message_insert(iterator, message);
}

/// The library behind keeps the lines of its entries to itself: the lines that begin one's English text, in order.
std::vector<int> entry_lines(const std::string& text)
{
    std::vector<int> lines;
    std::istringstream stream(text);
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        const std::size_t at = line.find("msgid");
        if (at != line.npos && line.find_first_not_of(" \t") == at && line.compare(at, 6, "msgid_") != 0) {
            lines.push_back(number);
        }
    }
    return lines;
}

PoEntry read_entry(po_message_t message, const Place& place)
{
    PoEntry entry;
    entry.key = letters(po_message_msgctxt(message));
    entry.english = letters(po_message_msgid(message));
    entry.translation = letters(po_message_msgstr(message));
    entry.remark = letters(po_message_comments(message));
    entry.old_english = letters(po_message_prev_msgid(message));
    entry.fuzzy = po_message_is_fuzzy(message) != 0;
    entry.obsolete = po_message_is_obsolete(message) != 0;
    entry.place = place;
    return entry;
}

/// Whether it is a header, which is taken then.
bool take_header(const PoEntry& entry, PoFile& content, std::vector<BadInput>& mistakes)
{
    if (!entry.key.empty() || !entry.english.empty()) {
        return false;
    }
    content.header = entry;
    content.language = field_of(entry.translation, language_field);
    const std::string type = field_of(entry.translation, "Content-Type");
    if (type.find("charset=UTF-8") == type.npos && type.find("charset=utf-8") == type.npos) {
        mistakes.emplace_back(Place{entry.place.file},
                              "the header has the Content-Type '" + type + "', expected text/plain; charset=UTF-8");
    }
    return true;
}

} // namespace

void write_po(const PoFile& content, const std::filesystem::path& path)
{
    if (!std::ofstream(path, std::ios::app)) {
        throw BadInput(Place{path.string()}, "can't be written: " + std::generic_category().message(errno));
    }
    const File file(po_file_create());
    const Iterator iterator = messages_of(file.get());
    PoEntry header = content.header;
    header.translation = completed(header.translation, content.language);
    insert(iterator.get(), header);
    for (const PoEntry& entry : content.entries) {
        insert(iterator.get(), entry);
    }
    std::vector<BadInput> mistakes;
    const Hearing hearing(mistakes);
    (void)po_file_write(file.get(), path.c_str(), &handler);
    if (!mistakes.empty()) {
        throw BadInput(mistakes.front());
    }
}

PoFile read_po(const std::filesystem::path& path, std::vector<BadInput>& mistakes)
{
    const std::string text = read_text_file(path);
    if (has_utf8_mark(text)) {
        throw BadInput(Place{path.string(), 1, 1}, std::string(utf8_mark_words) + ", expected " + utf8_mark_remedy);
    }
    const std::vector<int> lines = entry_lines(text);
    const Hearing hearing(mistakes);
    const File file(po_file_read(path.c_str(), &handler));
    if (file == nullptr) {
        throw BadInput(Place{path.string()}, "can't be read");
    }
    PoFile content;
    const Iterator iterator = messages_of(file.get());
    std::size_t number = 0;
    while (po_message_t message = po_next_message(iterator.get())) {
        const bool has_line = po_message_is_obsolete(message) == 0 && number < lines.size();
        const PoEntry entry = read_entry(message, {path.string(), has_line ? lines[number++] : 0});
        if (!take_header(entry, content, mistakes)) {
            content.entries.push_back(entry);
        }
    }
    return content;
}

} // namespace pages
