// Whether the fonts have all characters of all texts.
#pragma once

#include <vector>

#include "pages/check/finding.h"
#include "pages/data/resource_folder.h"

namespace pages {

/// A finding for each character of a language that a font lacks, at the first text that has it. SDL_ttf must be started.
std::vector<Finding> missing_glyphs(const ResourceFolder& folder);

} // namespace pages
