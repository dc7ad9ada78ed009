// The menu's own reader as the last judge of pages: what it refuses is told, whether a rule knows it or not.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "pages/data/finding.h"
#include "pages/data/resource_folder.h"

namespace pages {

struct Verdict {
    std::vector<Finding> findings; ///< of faults at places of which no other finding tells
    std::set<std::string> refused; ///< pages that can't be read as a whole in some language
};

/// told: what the rules have found.
Verdict judge_pages(const ResourceFolder& folder, const std::vector<Finding>& told);

} // namespace pages
