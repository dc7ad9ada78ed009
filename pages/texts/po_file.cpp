#include "pages/texts/po_file.h"

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

void hear(int severity, po_message_t /*message*/, const char* file, std::size_t line, std::size_t column,
          int /*multiline*/, const char* words)
{
    const BadInput mistake(place_of(file, line, column), words);
    if (severity == PO_SEVERITY_FATAL_ERROR) { // the handler must not return
        throw BadInput(mistake);
    }
    heard->push_back(mistake);
}

void hear_both(int severity, po_message_t message, const char* file, std::size_t line, std::size_t column,
               int multiline, const char* words, po_message_t /*other*/, const char* /*other_file*/,
               std::size_t other_line, std::size_t /*other_column*/, int /*other_multiline*/,
               const char* /*other_words*/)
{
    const std::string both = std::string(words) + ", the first one in line " + std::to_string(other_line);
    hear(severity, message, file, line, column, multiline, both.c_str());
}

constexpr po_xerror_handler handler = {hear, hear_both};

std::string header_of(const std::string& language)
{
    return "Project-Id-Version: camera menu\nMIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\n"
           "Content-Transfer-Encoding: 8bit\nLanguage: " +
           code_of(language) + "\n" + language_field + ": " + language + "\n";
}

void insert(po_message_iterator_t iterator, const PoEntry& entry)
{
    po_message_t message = po_message_create();
    po_message_set_msgctxt(message, entry.key.c_str());
    po_message_set_msgid(message, entry.english.c_str());
    po_message_set_msgstr(message, entry.translation.c_str());
    po_message_set_extracted_comments(message, entry.comment.c_str());
    po_message_set_comments(message, entry.remark.c_str());
    po_message_set_fuzzy(message, entry.fuzzy ? 1 : 0);
    po_message_set_prev_msgid(message, entry.old_english.empty() ? nullptr : entry.old_english.c_str());
    for (const Place& use : entry.uses) {
        po_message_add_filepos(message, use.file.c_str(), static_cast<std::size_t>(use.line));
    }
    po_message_insert(iterator, message);
}

void insert_header(po_message_iterator_t iterator, const std::string& language)
{
    po_message_t message = po_message_create();
    po_message_set_msgid(message, "");
    po_message_set_msgstr(message, header_of(language).c_str());
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

std::string letters(const char* text) { return text == nullptr ? "" : text; }

PoEntry read_entry(po_message_t message, const Place& place)
{
    PoEntry entry;
    entry.key = letters(po_message_msgctxt(message));
    entry.english = letters(po_message_msgid(message));
    entry.translation = letters(po_message_msgstr(message));
    entry.remark = letters(po_message_comments(message));
    entry.old_english = letters(po_message_prev_msgid(message));
    entry.fuzzy = po_message_is_fuzzy(message) != 0;
    entry.place = place;
    return entry;
}

std::string field_of(const std::string& header, const char* field)
{
    const Letters value(po_header_field(header.c_str(), field), std::free);
    return letters(value.get());
}

/// Whether it is a header, which is taken then.
bool take_header(po_message_t message, const std::string& path, PoFile& content, std::vector<BadInput>& mistakes)
{
    if (po_message_msgctxt(message) != nullptr || *po_message_msgid(message) != '\0') {
        return false;
    }
    const std::string header = letters(po_message_msgstr(message));
    content.language = field_of(header, language_field);
    const std::string type = field_of(header, "Content-Type");
    if (type.find("charset=UTF-8") == type.npos && type.find("charset=utf-8") == type.npos) {
        mistakes.emplace_back(Place{path},
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
    insert_header(iterator.get(), content.language);
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
    const std::vector<int> lines = entry_lines(read_text_file(path));
    const Hearing hearing(mistakes);
    const File file(po_file_read(path.c_str(), &handler));
    if (file == nullptr) {
        throw BadInput(Place{path.string()}, "can't be read");
    }
    PoFile content;
    const Iterator iterator = messages_of(file.get());
    std::size_t number = 0;
    while (po_message_t message = po_next_message(iterator.get())) {
        if (po_message_is_obsolete(message) != 0) {
            continue;
        }
        const int line = number < lines.size() ? lines[number++] : 0;
        if (!take_header(message, path.string(), content, mistakes)) {
            content.entries.push_back(read_entry(message, {path.string(), line}));
        }
    }
    return content;
}

} // namespace pages
