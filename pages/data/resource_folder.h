// All files of a folder of resources, read once.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "pages/data/definitions.h"
#include "pages/data/page_file.h"
#include "pages/data/texts.h"

namespace pages {

struct ResourceFolder {
    std::filesystem::path root;
    std::filesystem::path fonts;                           ///< folder of the three font files
    std::map<std::string, PageFile> pages;                 ///< by name; broken ones as well
    std::map<std::string, Texts> languages;                ///< by name
    Definitions definitions;                               ///< places, as in all of this, name files below the root
    std::map<std::string, std::filesystem::path> pictures; ///< by name
    std::vector<Allowance> allowances;                     ///< of all JSON files
    std::vector<BadInput> mistakes;                        ///< what can't be used; places name files below the root
    std::set<std::string> broken;                          ///< files that can't be used at all, below the root
};

/// "lang/German.json"
std::string language_file(const std::string& language);

/// The files in its folder of fonts.
inline constexpr const char* font_files[] = {"font.ttf", "bold_font.ttf", "tcfont.ttf"};

/// Whether it looks like a folder of resources at all.
bool is_resource_folder(const std::filesystem::path& root);

/// Reads what there is; what is wrong with it stands in the mistakes. fonts: empty for those of the folder, or for the
/// staged ones where it has none. Throws BadInput for what is no folder of resources.
ResourceFolder read_resource_folder(const std::filesystem::path& root, const std::filesystem::path& fonts = {});

/// Throws BadInput for a folder to write to that lies inside, where what is written would be taken for resources.
void refuse_inside(const ResourceFolder& folder, const std::filesystem::path& output);

} // namespace pages
