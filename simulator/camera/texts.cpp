#include "simulator/camera/texts.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

#include "simulator/base/log.h"

namespace sim {

Texts::Texts(const std::filesystem::path& folder, const std::map<std::string, std::string>& languages)
{
    std::vector<BadInput> mistakes;
    std::vector<pages::Allowance> allowances;
    for (const auto& [option, language] : languages) {
        languages_[language] = pages::read_texts(folder / (language + ".json"), mistakes, allowances);
    }
}

const std::string* Texts::find(const std::string& language, const std::string& key) const
{
    const auto texts = languages_.find(language);
    if (texts == languages_.end()) {
        return nullptr;
    }
    const auto text = texts->second.find(key);
    return text == texts->second.end() ? nullptr : &text->second.text;
}

const std::string* Texts::translate(const std::string& language, const std::string& key)
{
    const std::string* text = find(language, key);
    const bool is_key = !key.empty() && std::isalpha(static_cast<unsigned char>(key.front())) != 0;
    if (text == nullptr && is_key && missing_.insert(language + "/" + key).second) {
        log_line(LogLevel::Info, "language", "no text for '" + key + "' in " + language);
    }
    return text;
}

bool Texts::replace(const std::string& language, pages::Texts texts)
{
    pages::Texts& present = languages_[language];
    const bool same =
        std::equal(present.begin(), present.end(), texts.begin(), texts.end(), [](const auto& one, const auto& other) {
            return one.first == other.first && one.second.text == other.second.text;
        });
    present = std::move(texts);
    return !same;
}

} // namespace sim
