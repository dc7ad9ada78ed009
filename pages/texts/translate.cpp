#include "pages/texts/translate.h"

#include <algorithm>
#include <map>

#include "osd_types.h"
#include "pages/data/text_file.h"
#include "pages/grammar/text_use.h"
#include "pages/measure/glyphs.h"
#include "pages/texts/language_file.h"
#include "pages/texts/po_file.h"
#include "pages/texts/room.h"

namespace pages {
namespace {

constexpr std::size_t told_uses = 4; ///< of "Off" there are dozens

std::filesystem::path file_of(const ResourceFolder& folder, const std::string& language)
{
    return folder.root / "lang" / (language + ".json");
}

void check_name(const std::string& language)
{
    if (language == source_language) {
        throw BadInput("English is what gets translated, expected another language");
    }
    if (language.empty() || language.size() > max_text_bytes || language.find_first_of("./\\:") != language.npos) {
        throw BadInput("'" + language + "' is no name of a language, expected 1 to 31 bytes without . / \\ :");
    }
}

/// room: null for a text that no page shows.
std::string comment_for(const std::vector<TextUse>& uses, const TextRoom* room)
{
    std::vector<std::string> words;
    for (const TextUse& use : uses) {
        if (std::count(words.begin(), words.end(), use.words) == 0) {
            words.push_back(use.words);
        }
    }
    const std::size_t more = words.size() - std::min(words.size(), told_uses);
    words.resize(words.size() - more);
    std::string comment = joined(words) + (more > 0 ? " and " + std::to_string(more) + " more" : "");
    comment = (comment.empty() ? "nothing here uses it, but a camera may tell this key" : comment) + "\nat most " +
              std::to_string(max_text_bytes) + " bytes";
    if (room != nullptr) {
        comment += ", and " + std::to_string(room->room) + " pixels on page " + room->page + " at " +
                   size_name(room->view.uhd) + ", where the English has " + std::to_string(room->width);
    }
    return comment + "\n";
}

PoEntry entry_for(const SourceText& text, const std::map<std::string, std::string>& translations,
                  const std::vector<TextUse>& uses, const TextRoom* room)
{
    PoEntry entry;
    entry.key = text.key;
    entry.english = text.english;
    const auto translation = translations.find(text.key);
    entry.translation = translation == translations.end() ? "" : translation->second;
    entry.comment = comment_for(uses, room);
    for (const TextUse& use : uses) {
        if (!use.place.file.empty()) {
            entry.uses.push_back(use.place);
        }
    }
    return entry;
}

std::string words_of_misfit(const TextRoom& room)
{
    return room.lost > 0
               ? counted(room.lost, "byte") + " too long with the number of page " + room.page + ", which shows '" +
                     room.text + "': both and two blanks have at most " + std::to_string(max_text_bytes)
               : counted(-room.left(), "pixel") + " too wide: '" + room.text + "' has " + std::to_string(room.width) +
                     " on page " + room.page + " (" + to_string(room.view) + "), " + std::to_string(room.room) + " fit";
}

std::string words_of_language(const PoFile& content, const std::string& language)
{
    return "the file is for " + (content.language.empty() ? "no language" : content.language) + ", expected " +
           language + " as X-Menu-Language in its header";
}

/// The file that is there already; an empty one where there is none.
PoFile older_file(const std::filesystem::path& file, const std::string& language, bool update)
{
    if (!std::filesystem::exists(file)) {
        return {language, {}, {}};
    }
    if (!update) {
        throw BadInput(Place{file.string()},
                       "is there already and may hold translations, expected another name or --update");
    }
    std::vector<BadInput> mistakes;
    PoFile older = read_po(file, mistakes);
    if (older.language != language) {
        mistakes.emplace_back(Place{file.string()}, words_of_language(older, language));
    }
    if (!mistakes.empty()) {
        throw BadInput(mistakes.front());
    }
    return older;
}

/// By key; one of a text that is there goes before an obsolete one.
std::map<std::string, const PoEntry*> entries_of(const PoFile& file)
{
    std::map<std::string, const PoEntry*> entries;
    for (const PoEntry& entry : file.entries) {
        const PoEntry*& known = entries[entry.key];
        known = known == nullptr || known->obsolete ? &entry : known;
    }
    return entries;
}

void take_over(const PoEntry& old, PoEntry& entry)
{
    entry.remark = old.remark;
    if (old.translation.empty()) {
        return;
    }
    const bool changed = old.english != entry.english;
    entry.translation = old.translation;
    entry.fuzzy = old.fuzzy || changed;
    entry.old_english = changed ? old.english : old.old_english;
}

/// What was translated and has no text any more may come back.
void keep_obsolete(const std::map<std::string, const PoEntry*>& older, PoFile& content)
{
    const auto now = entries_of(content);
    for (const auto& [key, old] : older) {
        if (now.count(key) == 0 && !old->translation.empty()) {
            content.entries.push_back(*old);
            content.entries.back().obsolete = true;
        }
    }
}

/// Reads the translations of a PO file and refuses what doesn't fit.
class Import {
public:
    Import(const ResourceFolder& folder, const std::string& language, std::string file)
        : source_(source_texts(folder)), file_(std::move(file)), language_(language)
    {
        for (const SourceText& text : source_) {
            english_[text.key] = text.english;
        }
    }

    void take(const PoFile& content)
    {
        if (content.language != language_) {
            refuse({file_}, words_of_language(content, language_));
        }
        for (const PoEntry& entry : content.entries) {
            if (entry.obsolete) {
                continue;
            }
            const std::string problem = problem_with(entry);
            places_[entry.key] = entry.place;
            if (problem.empty()) {
                texts[entry.key] = entry.translation;
            } else {
                refuse(entry.place, "'" + entry.key + "' " + problem);
            }
        }
        for (const SourceText& text : source_) {
            if (places_.count(text.key) == 0) {
                refuse({file_},
                       "'" + text.key + "' is missing (" + text.english + "), expected an entry: export with --update");
            }
        }
    }

    /// What the language has and English lacks would be lost.
    void keep(const ResourceFolder& folder)
    {
        const auto old = folder.languages.find(language_);
        if (old == folder.languages.end()) {
            return;
        }
        for (const auto& [key, text] : old->second) {
            if (english_.count(key) == 0) {
                const std::string path = file_of(folder, language_).string();
                refuse({path, text.place.line, text.place.column},
                       "'" + key + "' is no text of English.json, expected it there or not at all");
            }
        }
    }

    /// Draws the translations; the English texts stand in for those that are refused.
    void measure_texts(ResourceFolder& folder)
    {
        std::map<std::string, std::string> tried = texts;
        tried.insert(english_.begin(), english_.end());
        for (const auto& [key, room] : narrowest_rooms(folder, language_, tried)) {
            if (texts.count(key) != 0 && !room.fits()) {
                refuse(places_[key], "'" + key + "' is " + words_of_misfit(room));
            }
        }
    }

    /// By the rule of the check, at the lines of the PO file.
    void find_missing_glyphs(const std::filesystem::path& fonts)
    {
        ResourceFolder translated;
        translated.fonts = fonts;
        for (const auto& [key, text] : texts) {
            translated.languages[language_][key] = {text, places_[key]};
        }
        for (const Finding& finding : missing_glyphs(translated)) {
            refuse({file_, finding.place.line}, words_of(finding));
        }
    }

    /// Those of the PO file first, by its lines.
    std::vector<BadInput> sorted_refusals() const
    {
        std::vector<BadInput> sorted = refusals_;
        const auto at = [&](const BadInput& refusal) {
            return std::pair(refusal.place().file != file_, refusal.place().line);
        };
        std::stable_sort(sorted.begin(), sorted.end(),
                         [&](const BadInput& a, const BadInput& b) { return at(a) < at(b); });
        return sorted;
    }

    std::string content(const std::filesystem::path& older) const { return language_file(source_, texts, older); }

    std::map<std::string, std::string> texts;

private:
    void refuse(const Place& place, const std::string& words) { refusals_.emplace_back(place, words); }

    std::string problem_with(const PoEntry& entry) const
    {
        const auto english = english_.find(entry.key);
        const std::string& text = entry.translation;
        if (english == english_.end()) {
            return "is no text of English.json, expected msgctxt with the key of one";
        }
        if (english->second != entry.english) {
            return "translates '" + entry.english + "', but English.json has '" + english->second +
                   "' now: export with --update";
        }
        if (entry.fuzzy) {
            return "is marked fuzzy, expected a look at the translation, and no mark";
        }
        if (text.find_first_not_of(' ') == text.npos) {
            return "has no translation of '" + entry.english + "'";
        }
        if (std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; })) {
            return "holds a line break or another control character, expected one line";
        }
        return text.size() <= max_text_bytes ? ""
                                             : "is too long: " + words_of_length(text) + ", at most " +
                                                   std::to_string(max_text_bytes) + " bytes fit";
    }

    std::vector<SourceText> source_;
    std::map<std::string, std::string> english_;
    std::map<std::string, Place> places_; ///< of the entries
    std::vector<BadInput> refusals_;
    std::string file_;
    std::string language_;
};

} // namespace

Exported export_texts(ResourceFolder& folder, const std::string& language, const std::filesystem::path& file,
                      bool update)
{
    check_name(language);
    const PoFile older_content = older_file(file, language, update);
    const auto older = entries_of(older_content);
    const auto translations = texts_of(folder, language);
    const auto source = source_texts(folder);
    const auto rooms = narrowest_rooms(folder, language, texts_of(folder, source_language));
    auto uses = text_uses(folder);
    PoFile content{language, older_content.header, {}};
    Exported exported{0, 0};
    for (const SourceText& text : source) {
        const auto room = rooms.find(text.key);
        content.entries.push_back(
            entry_for(text, translations, uses[text.key], room == rooms.end() ? nullptr : &room->second));
        PoEntry& entry = content.entries.back();
        const auto old = older.find(text.key);
        if (old != older.end()) {
            take_over(*old->second, entry);
        }
        ++exported.texts;
        exported.translated += entry.translation.empty() || entry.fuzzy ? 0 : 1;
    }
    keep_obsolete(older, content);
    write_po(content, file);
    return exported;
}

Imported import_texts(ResourceFolder& folder, const std::string& language, const std::filesystem::path& file)
{
    check_name(language);
    const auto old = texts_of(folder, language);
    Imported imported;
    const PoFile content = read_po(file, imported.refusals);
    imported.usable = imported.refusals.empty();
    if (!imported.usable) { // what else is missing would follow from it
        return imported;
    }
    Import import(folder, language, file.string());
    import.take(content);
    import.keep(folder);
    import.measure_texts(folder);
    import.find_missing_glyphs(folder.fonts);
    imported.refusals = import.sorted_refusals();
    if (imported.refusals.empty() && import.texts != old) {
        const std::filesystem::path target = file_of(folder, language);
        write_text_file(target, import.content(target));
        imported.changed = true;
    }
    return imported;
}

} // namespace pages
