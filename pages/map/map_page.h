// The map as HTML.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "pages/map/walk.h"

namespace pages {

/// What the map shows.
struct Atlas {
    std::string root; ///< of the resources, as the title says
    View view;
    Walk walk;
    std::vector<std::string> unreached;          ///< pages
    std::vector<SettingId> without_row;          ///< settings that no reached page changes
    std::map<std::string, std::string> pictures; ///< PNG of each page
};

std::string map_page(const Atlas& atlas);

} // namespace pages
