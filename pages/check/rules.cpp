// The rules in the order in which they are told.
#include "pages/check/check.h"

namespace pages {
namespace {

void find_unusable(const ResourceFolder& folder, const Complain& complain)
{
    for (const BadInput& mistake : folder.mistakes) {
        complain(mistake.place(), mistake.words(), "");
    }
}

} // namespace

const std::vector<Rule>& all_rules()
{
    static const std::vector<Rule> rules = {
        {"unusable", Severity::Error, "A file, or a part of it, can't be used at all.", find_unusable},
    };
    return rules;
}

} // namespace pages
