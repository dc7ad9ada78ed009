#include "simulator/core/translations.h"

#include "osd_types.h"
#include "simulator/core/json_file.h"

namespace sim {
namespace {

constexpr std::size_t max_bytes = OSD_TEXT_LEN - 1;

std::map<std::string, std::string> load_language(const std::filesystem::path& path)
{
    JsonPlaces places(path.string());
    const nlohmann::json root = load_json_object(path, &places);
    std::map<std::string, std::string> texts;
    for (const auto& [key, value] : root.items()) {
        FieldReader reader(root, places.of("/" + key));
        if (key.size() > max_bytes) {
            reader.complain("key '" + key + "' has " + std::to_string(key.size()) + " bytes, at most 31 fit the menu");
        }
        texts[key] = reader.text(key, 0, max_bytes);
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
