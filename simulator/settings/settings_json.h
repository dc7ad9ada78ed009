// The settings as JSON: what programs read of them, and how they go from one camera to another.
#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "simulator/settings/settings.h"

namespace sim {

/// One setting with its name, kind, present value, default and range.
nlohmann::json setting_object(const Settings& settings, const Setting& setting);
/// {"settings": [...]}: all of them, by parent and key.
nlohmann::json settings_list(const Settings& settings);

/// The text of a value, which may be given as a whole number. Throws BadInput, beginning with the place.
std::string value_text(const nlohmann::json& value, const std::string& place);

/// Name to present value, for import_settings().
nlohmann::json export_settings(const Settings& settings);
/// Stores the values of an object of name to value, all of them or none; a setting that it doesn't name keeps its value.
/// Returns how many there were. Throws BadInput for an unknown name, a setting named twice and a value that doesn't
/// fit: the words name the setting and what would fit, and begin with the place.
std::size_t import_settings(Settings& settings, const nlohmann::json& values, const std::string& place = "import");

/// The same from file to file. Throw BadInput with the file's name.
void export_settings_file(const Settings& settings, const std::filesystem::path& path);
std::size_t import_settings_file(Settings& settings, const std::filesystem::path& path);

} // namespace sim
