// What settings the camera has: read once at start from the settings definitions file.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "pages/data/allowance.h"
#include "pages/data/json_file.h"
#include "pages/data/setting.h"

namespace pages {

struct Definitions {
    std::map<SettingId, Setting> settings;
    std::map<std::string, std::string> languages; ///< option key of the setting "Language" to the language's name
    std::map<std::string, std::string> facts;     ///< what the camera knows of itself, by event name
    std::map<std::string, std::string> zones;     ///< data zone of an item to parent key
    std::vector<Allowance> allowances;
    JsonPlaces places{""}; ///< of all parts of the file
};

/// The one setting whose value chooses the language of the menu.
inline const SettingId language_setting{"", "Language"};

/// The setting behind the parts of the tally light's color.
constexpr const char* custom_color = "LedCustomColor";

/// The name under which the facts answer an event of the library's get-callback; empty for an unknown event.
const char* fact_of_event(int event);

/// The option key of a language given by its name or by the key itself. Throws BadInput, which lists the names.
std::string option_of_language(const Definitions& definitions, const std::string& wanted);

/// The name of a language given by its name or by its option key; what is neither stays as it is.
std::string language_named(const Definitions& definitions, const std::string& wanted);

/// Reads and checks the file; what can't be used is left out, with a mistake for each. Throws BadInput when nothing can
/// be used.
Definitions read_definitions(const std::filesystem::path& path, std::vector<BadInput>& mistakes);
/// The same, throws the first mistake.
Definitions load_definitions(const std::filesystem::path& path);

} // namespace pages
