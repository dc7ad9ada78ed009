// Whether the fonts are there, and have all characters that can be drawn.
#pragma once

#include <vector>

#include "pages/data/finding.h"
#include "pages/data/resource_folder.h"

namespace pages {

/// A finding for each file of a font that isn't there.
std::vector<Finding> missing_fonts(const ResourceFolder& folder);

/// A finding for each character that a font lacks in each text that has it. SDL_ttf must be started.
std::vector<Finding> missing_glyphs(const ResourceFolder& folder);

} // namespace pages
