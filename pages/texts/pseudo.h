// A language of lengthened texts with accents, which shows what gets cut before anyone translates.
#pragma once

#include <filesystem>
#include <string>

#include "pages/data/resource_folder.h"

namespace pages {

/// "[Brïïghtnëëss]": a third longer than the text, as far as 31 bytes allow, with marks at both ends.
std::string pseudo_text(const std::string& text);

/// Writes a copy of the folder that has the language "Pseudo" too. Throws BadInput when the copy's folder isn't empty.
void write_pseudo(const ResourceFolder& folder, const std::filesystem::path& copy);

} // namespace pages
