// What settings the camera has: read once at start from the settings definitions file.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "simulator/core/setting.h"

namespace sim {

struct Definitions {
    std::map<SettingId, Setting> settings;
    std::map<std::string, std::string> languages; ///< option key of the setting "Language" to the language's name
    std::map<std::string, std::string> facts;     ///< what the camera knows of itself, by event name
    std::map<std::string, std::string> zones;     ///< data zone of an item to parent key
};

/// The one setting whose value chooses the language of the menu.
inline const SettingId language_setting{"", "Language"};

/// The option key of a language given by its name or by the key itself. Throws BadInput, which lists the names.
std::string option_of_language(const Definitions& definitions, const std::string& wanted);

/// Reads and checks the file. Throws BadInput: file, setting, what was expected.
Definitions load_definitions(const std::filesystem::path& path);

} // namespace sim
