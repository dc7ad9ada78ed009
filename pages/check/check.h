// The check of a folder of resources.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "pages/data/rule.h"
#include "pages/measure/measure.h"

namespace pages {

struct CheckOptions {
    bool measure = true; ///< draw and measure as well
    Wanted measured;     ///< what of it; null for all
    /// Asked while pages are drawn; once true, no more are, and the result is of no use. Null for never.
    std::function<bool()> is_given_up = nullptr;
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
