// Contact sheets: many pages on one picture, each a tile with its name.
#pragma once

#include <filesystem>
#include <vector>

#include "pages/preview/selection.h"

namespace pages {

/// Writes sheets and tells their files. A path that ends with ".png" gets one: a single page in all languages where the
/// selection names one page and no language, else all pages in the selection's first language (or in that of the
/// default), style and size. Any other path is a folder, made when there is none: it gets a sheet of all pages for each
/// language, style and size ("German-style0-1080p.png"), and one of all languages for each page, style and size
/// ("page-exposure-style0-1080p.png"). Throws BadInput and std::runtime_error.
std::vector<std::filesystem::path> write_sheets(const ResourceFolder& folder, const std::filesystem::path& path,
                                                const Selection& selection);

} // namespace pages
