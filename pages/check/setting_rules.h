// The settings behind items, and the languages that one of them chooses.
#pragma once

#include <string>
#include <vector>

#include "pages/data/resource_folder.h"

namespace pages {

/// The setting whose value an item shows; null for none.
const Setting* setting_of(const ResourceFolder& folder, const Element& item);

/// Languages that settings.json names and that have no file.
std::vector<std::string> languages_without_file(const ResourceFolder& folder);

} // namespace pages
