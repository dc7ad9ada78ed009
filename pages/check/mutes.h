// What authors allow. In a page file a comment
//
//     <!-- osdmenu-pages: allow RULE: reason -->
//
// allows what a rule says of the element that follows, with all in it; before the outermost element, of the whole file.
// JSON files have a member for it, see allowance.h.
#pragma once

#include <vector>

#include "pages/check/rule.h"

namespace pages {

/// Takes out what is allowed, and adds a warning for what allows nothing: without a reason, with the name of no rule, or
/// with nothing to allow. measured: whether the rules that draw pages had their say.
void apply_mutes(const ResourceFolder& folder, bool measured, std::vector<Finding>& findings);

} // namespace pages
