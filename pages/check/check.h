// The check of a folder of resources.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "pages/check/rule.h"
#include "pages/measure/measure.h"

namespace pages {

struct CheckOptions {
    bool measure = true; ///< draw and measure as well
    Wanted measured;     ///< what of it; null for all
};

struct CheckResult {
    std::vector<Finding> findings; ///< by place; muted ones are left out
    std::set<std::string> refused; ///< pages that the menu can't show as a whole in some language
};

/// Everything that can be known of a folder. Any thread, one at a time: others wait.
CheckResult check(const ResourceFolder& folder, const CheckOptions& options);

/// In the order of their places, those of one cause united.
std::vector<Finding> by_cause(std::vector<Finding> findings);

/// All rules, for the documents.
const std::vector<Rule>& all_rules();

} // namespace pages
