// Which pages are looked at, and how.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "pages/menu/menu.h"

namespace pages {

/// What is empty restricts nothing.
struct Selection {
    std::set<std::string> pages;
    std::set<std::string> languages; ///< names, or option keys of the setting "Language"
    std::set<std::uint32_t> styles;
    std::optional<bool> uhd;
};

/// With the languages by their names. Throws BadInput for a page, a language or a style that there isn't, and lists
/// those that there are.
Selection checked(const Selection& selection, const ResourceFolder& folder);

bool takes_page(const Selection& selection, const std::string& page);
/// The views that the selection, once checked, takes.
std::vector<View> views_of(const Selection& selection, const ResourceFolder& folder);
/// The one to take where one is wanted: of style 0, 1080p and the default language, unless the selection says otherwise.
View first_view(const Selection& selection, const ResourceFolder& folder);

} // namespace pages
