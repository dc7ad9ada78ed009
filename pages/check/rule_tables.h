// The rules by subject; each table stands in the file of its name.
#pragma once

#include <vector>

#include "pages/data/rule.h"

namespace pages {

const std::vector<Rule>& file_rules();
const std::vector<Rule>& element_rules();
const std::vector<Rule>& attribute_rules();
const std::vector<Rule>& text_rules();
const std::vector<Rule>& setting_rules();
const std::vector<Rule>& way_rules();
const std::vector<Rule>& question_rules();
const std::vector<Rule>& layout_rules();

/// Of the check's own remarks on what an author allows; see mutes.h.
constexpr const char* allowance_rule = "allowance";

} // namespace pages
