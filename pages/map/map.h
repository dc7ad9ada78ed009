// A map of all pages, joined by the keys that lead there.
#pragma once

#include <filesystem>

#include "pages/preview/selection.h"

namespace pages {

struct MapCounts {
    std::size_t reached = 0;
    std::size_t unreached = 0;
    std::size_t too_deep = 0;
    std::size_t dead_ends = 0;
};

/// Writes one HTML file, which holds all that it shows, in the selection's first view. Throws BadInput and
/// std::runtime_error.
MapCounts write_map(const ResourceFolder& folder, const std::filesystem::path& file, const Selection& selection);

} // namespace pages
