// Which page leads to which.
#pragma once

#include <string>
#include <vector>

#include "pages/data/resource_folder.h"

namespace pages {

struct Link {
    const PageFile* page; ///< from which it leads
    const Attribute* attribute;
    std::string target; ///< the name of a page that may be missing

    bool is_back() const; ///< closes the page and opens none
    bool is_next() const;
    bool is_question() const;
};

/// All links that the menu reads, page by page.
std::vector<Link> all_links(const ResourceFolder& folder);

} // namespace pages
