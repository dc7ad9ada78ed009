// Where the pages use their texts.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "pages/data/resource_folder.h"

namespace pages {

struct TextUse {
    Place place;       ///< below the folder
    std::string words; ///< "label on page image"
};

/// By the text's key, in the order of the files. Texts that the menu shows by itself have none.
std::map<std::string, std::vector<TextUse>> text_uses(const ResourceFolder& folder);

} // namespace pages
