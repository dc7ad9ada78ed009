// The check of a folder of resources.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "pages/check/rule.h"

namespace pages {

struct CheckOptions {
    bool measure = true;                  ///< draw and measure as well
    std::set<std::string> measured_pages; ///< only these; empty for all
};

/// All findings, by place; muted ones are left out. Reads nothing but what the folder holds. Any thread, one at a time:
/// others wait.
std::vector<Finding> check(const ResourceFolder& folder, const CheckOptions& options);

/// All rules, for the documents.
const std::vector<Rule>& all_rules();

} // namespace pages
