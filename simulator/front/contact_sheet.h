// Contact sheets: all pages side by side, for the eyes of authors and translators.
#pragma once

#include "simulator/front/options.h"

namespace sim {

/// Writes one sheet, in the language and style of the options, when the path ends with ".png"; else the path is a
/// folder, made when there is none, and gets a sheet for each language and style. All are of the options' size. Every
/// page is shown over "main", in the order of page_names(), row by row. Throws BadInput and std::runtime_error.
void write_contact_sheets(const std::filesystem::path& path, const Options& options);

} // namespace sim
