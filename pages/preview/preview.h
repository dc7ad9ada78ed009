// Pictures of all pages, and a page to leaf through them.
#pragma once

#include <filesystem>
#include <functional>

#include "pages/preview/difference.h"
#include "pages/preview/selection.h"

namespace pages {

struct Preview {
    std::size_t pictures = 0;
    Changes changes; ///< against the earlier run
};

/// Hears how many pictures of how many are drawn.
using Progress = std::function<void(std::size_t drawn, std::size_t all)>;

/// Writes FOLDER/LANGUAGE/style0-1080p/PAGE.png for each page, language, style and size, and FOLDER/index.html. Compares
/// with an earlier run in another folder, unless that is empty. Throws BadInput, as for a folder among the resources, and
/// std::runtime_error.
Preview write_preview(
    const ResourceFolder& folder, const std::filesystem::path& to, const Selection& selection,
    const std::filesystem::path& earlier, const Progress& progress = [](auto...) {});

} // namespace pages
