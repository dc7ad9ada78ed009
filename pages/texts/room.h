// How wide the texts of a language may be.
#pragma once

#include <map>
#include <string>

#include "pages/measure/measure.h"

namespace pages {

/// By the text's key, the place in which it has the least pixels left while the language has these texts.
std::map<std::string, TextRoom> narrowest_rooms(ResourceFolder& folder, const std::string& language,
                                                const std::map<std::string, std::string>& texts);

} // namespace pages
