// All rules in the order of their subjects.
#include "pages/check/rule_tables.h"

#include "pages/check/check.h"
#include "pages/measure/judge.h"

namespace pages {

const std::vector<Rule>& all_rules()
{
    static const std::vector<Rule> rules = [] {
        std::vector<Rule> all;
        for (const auto* table : {&file_rules(), &element_rules(), &attribute_rules(), &text_rules(), &setting_rules(),
                                  &way_rules(), &question_rules(), &layout_rules(), &measure_rules()}) {
            all.insert(all.end(), table->begin(), table->end());
        }
        all.push_back({allowance_rule, Severity::Warning,
                       "What is allowed names a rule and a reason, and there is something to allow.", nullptr});
        return all;
    }();
    return rules;
}

} // namespace pages
