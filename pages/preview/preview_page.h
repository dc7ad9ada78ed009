// The page to leaf through pictures.
#pragma once

#include <string>
#include <vector>

#include "pages/preview/difference.h"
#include "pages/preview/shot.h"

namespace pages {

/// Folder of a view's pictures: "German/style0-1080p".
std::string folder_of(const View& view);

/// HTML with all that it needs but the pictures.
std::string preview_page(const std::vector<Shot>& shots, const std::vector<View>& views, const Changes& changes,
                         bool compared);

} // namespace pages
