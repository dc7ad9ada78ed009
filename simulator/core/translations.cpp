#include "simulator/core/translations.h"

#include "simulator/core/data.h"

namespace sim {
namespace {

std::map<std::string, std::string> load_language(const std::filesystem::path& path)
{
    std::map<std::string, std::string> texts;
    for (const auto& [key, text] : pages::load_texts(path)) {
        texts[key] = text.text;
    }
    return texts;
}

} // namespace

Translations::Translations(const std::filesystem::path& folder, const std::map<std::string, std::string>& languages)
    : folder_(folder)
{
    add(languages);
}

void Translations::add(const std::map<std::string, std::string>& languages)
{
    std::map<std::string, std::map<std::string, std::string>> added;
    for (const auto& [key, language] : languages) {
        if (texts_.count(language) == 0) {
            added[language] = load_language(folder_ / (language + ".json"));
        }
    }
    texts_.merge(added);
}

bool Translations::reload(const std::string& language)
{
    const auto texts = texts_.find(language);
    if (texts == texts_.end()) {
        return false;
    }
    texts->second = load_language(folder_ / (language + ".json"));
    return true;
}

const std::string* Translations::find(const std::string& language, const std::string& key) const
{
    const auto texts = texts_.find(language);
    if (texts == texts_.end()) {
        return nullptr;
    }
    const auto text = texts->second.find(key);
    return text == texts->second.end() ? nullptr : &text->second;
}

} // namespace sim
