// Texts: all that is asked for is there, in all languages.
#include "pages/check/rule_tables.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <set>

#include "menu/core/value_status.h"
#include "menu/core/words.h"
#include "pages/grammar/cases.h"
#include "pages/grammar/page_walk.h"
#include "pages/grammar/text_use.h"

namespace pages {
namespace {

/// By key, the first place where the text stands; English first, as translators start from it.
std::map<std::string, Place> all_keys(const ResourceFolder& folder)
{
    std::map<std::string, Place> keys;
    const auto add = [&](const Texts& texts) {
        for (const auto& [key, text] : texts) {
            keys.emplace(key, text.place);
        }
    };
    const auto english = folder.languages.find(OSD_LANGUAGE_EN);
    if (english != folder.languages.end()) {
        add(english->second);
    }
    for (const auto& [language, texts] : folder.languages) {
        add(texts);
    }
    return keys;
}

/// Tells of keys that no language has a text for.
class Need {
public:
    Need(const ResourceFolder& folder, const Complain& complain)
        : folder_(folder), complain_(complain), keys_(keys_of(all_keys(folder)))
    {
    }

    void operator()(const Place& place, const std::string& key) const
    {
        const bool known = std::binary_search(keys_.begin(), keys_.end(), key);
        const auto broken = [&](const auto& language) {
            return is_unusable(folder_, language_file(language.first), "'" + key + "'");
        };
        if (!known && key.size() < OSD_TEXT_LEN && // a longer one is told by its own rule
            std::none_of(folder_.languages.begin(), folder_.languages.end(), broken)) {
            complain_(place, "no language has a text '" + key + "'",
                      nearest_or(key, keys_, "it in each file of lang/"));
        }
    }

private:
    const ResourceFolder& folder_;
    const Complain& complain_;
    std::vector<std::string> keys_; ///< in their order
};

void find_missing_texts(const ResourceFolder& folder, const Complain& complain)
{
    if (folder.languages.empty()) {
        return;
    }
    const Need need(folder, complain);
    for (const auto& [key, uses] : text_uses(folder)) {
        for (const TextUse& use : uses) {
            need(use.place.file.empty() ? Place{"lang/"} : use.place, key);
        }
    }
}

/// The languages that lack a text; one that can't be used is told by its own rule.
std::vector<std::string> languages_without(const ResourceFolder& folder, const std::string& key)
{
    std::vector<std::string> without;
    for (const auto& [language, texts] : folder.languages) {
        if (texts.count(key) == 0 && !is_unusable(folder, language_file(language), "'" + key + "'")) {
            without.push_back(language);
        }
    }
    return without;
}

/// By key, the languages that lack it.
using Gaps = std::map<std::string, std::vector<std::string>>;

/// A key that one language has, nobody asks for, and that is near to one that this language alone lacks is misspelt:
/// one mistake, not two.
void take_misspelt(const ResourceFolder& folder, Gaps& gaps, const Complain& complain)
{
    const auto uses = text_uses(folder);
    for (const auto& [language, texts] : folder.languages) {
        std::vector<std::string> lacking;
        for (const auto& [key, without] : gaps) {
            if (without == std::vector<std::string>{language}) {
                lacking.push_back(key);
            }
        }
        for (const auto& [key, text] : texts) {
            const auto gap = gaps.find(key);
            const bool alone = gap != gaps.end() && gap->second.size() + 1 == folder.languages.size();
            const std::string meant = alone && uses.count(key) == 0 ? nearest_word(key, lacking) : "";
            if (!meant.empty()) {
                complain(text.place, "no other language has a text '" + key + "'", "'" + meant + "'");
                lacking.erase(std::find(lacking.begin(), lacking.end(), meant));
                gaps.erase(key);
                gaps.erase(meant);
            }
        }
    }
}

constexpr std::size_t many_gaps = 20;

/// Takes out the languages that lack many texts: somebody is about to translate them.
void tell_half_done(const ResourceFolder& folder, Gaps& gaps, const Complain& complain)
{
    for (const std::string& language : keys_of(folder.languages)) {
        std::vector<std::string> lacking;
        for (const auto& [key, without] : gaps) {
            if (std::count(without.begin(), without.end(), language) > 0) {
                lacking.push_back(key);
            }
        }
        if (lacking.size() < many_gaps) {
            continue;
        }
        complain({language_file(language)},
                 std::to_string(lacking.size()) + " keys have no text in " + language + ", the first is '" +
                     lacking.front() + "'",
                 "all texts: osdmenu-pages texts export FOLDER " + language + " FILE.po has them to translate");
        for (const std::string& key : lacking) {
            std::vector<std::string>& without = gaps[key];
            without.erase(std::find(without.begin(), without.end(), language));
            if (without.empty()) {
                gaps.erase(key);
            }
        }
    }
}

void find_untranslated(const ResourceFolder& folder, const Complain& complain)
{
    const std::map<std::string, Place> keys = all_keys(folder);
    Gaps gaps;
    for (const auto& [key, place] : keys) {
        const std::vector<std::string> without = languages_without(folder, key);
        if (!without.empty()) {
            gaps.emplace(key, without);
        }
    }
    take_misspelt(folder, gaps, complain);
    tell_half_done(folder, gaps, complain);
    for (const auto& [key, without] : gaps) {
        const Place& known = keys.at(key);
        complain({language_file(without.front())}, "'" + key + "' has no text in " + joined(without),
                 "one as on line " + std::to_string(known.line) + " of " + known.file);
    }
}

template <typename Test>
void tell_texts(const ResourceFolder& folder, const Complain& complain, Test test, const std::string& what)
{
    for (const auto& [language, texts] : folder.languages) {
        for (const auto& [key, text] : texts) {
            if (test(text.text)) {
                complain(text.place, "the text of '" + key + "' " + what, "at least one letter");
            }
        }
    }
}

void find_empty_texts(const ResourceFolder& folder, const Complain& complain)
{
    tell_texts(
        folder, complain, [](const std::string& text) { return text.empty(); }, "is empty");
}

void find_blank_texts(const ResourceFolder& folder, const Complain& complain)
{
    const auto is_blank = [](const std::string& text) {
        std::string rest = text;
        for (const char* blank : {" ", "\t", "\n", "\r", "\xC2\xA0", "\xE3\x80\x80"}) { // also those of other widths
            for (std::size_t at = rest.find(blank); at != rest.npos; at = rest.find(blank)) {
                rest.erase(at, std::strlen(blank));
            }
        }
        return !text.empty() && rest.empty();
    };
    tell_texts(folder, complain, is_blank, "holds nothing but blanks");
}

} // namespace

const std::vector<Rule>& text_rules()
{
    static const std::vector<Rule> rules = {
        {"missing-text", Severity::Error, "There is a text for each key that a page, a setting or the menu asks for.",
         find_missing_texts, Told::Once},
        {"translation", Severity::Error, "A text is there in all languages.", find_untranslated},
        {"empty-text", Severity::Error, "No text is empty.", find_empty_texts},
        {"blank-text", Severity::Warning, "No text consists of blanks.", find_blank_texts},
    };
    return rules;
}

} // namespace pages
