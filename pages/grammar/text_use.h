// Where pages, settings and the menu use the texts.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "pages/data/resource_folder.h"

namespace pages {

struct TextUse {
    Place place;       ///< below the folder; of no file for what the menu shows by itself
    std::string words; ///< "label on page image"
};

/// By the text's key, in the order of the files. A camera may show more: what it tells of itself can be a key.
std::map<std::string, std::vector<TextUse>> text_uses(const ResourceFolder& folder);

} // namespace pages
