#include <algorithm>

#include "osd_types.h"
#include "pages/texts/translate.h"

namespace pages {
namespace {

/// The key that the setting "Language" stores for a language; empty where there is none yet.
std::string option_for(const ResourceFolder& folder, const std::string& language)
{
    const auto& languages = folder.definitions.languages;
    const auto found =
        std::find_if(languages.begin(), languages.end(), [&](const auto& row) { return row.second == language; });
    return found == languages.end() ? "" : found->first;
}

std::string languages_without(const ResourceFolder& folder, const std::string& key)
{
    std::string files;
    for (const auto& [name, texts] : folder.languages) {
        if (texts.count(key) == 0) {
            files += (files.empty() ? "" : ", ") + ("lang/" + name + ".json");
        }
    }
    return files;
}

} // namespace

std::vector<std::string> left_to_do(const ResourceFolder& folder, const std::string& language)
{
    std::vector<std::string> steps;
    std::string option = option_for(folder, language);
    if (option.empty()) {
        option = language.substr(0, OSD_CFG_VALUE_LEN - 1);
        steps.push_back("in settings.json add \"" + option + "\": \"" + language + "\" to \"languages\", and \"" +
                        option + "\" to the options of the setting \"Language\"");
    }
    const std::string files = languages_without(folder, option);
    if (!files.empty()) {
        steps.push_back("add the text \"" + option + "\", the language's own name, to " + files);
    }
    return steps;
}

} // namespace pages
