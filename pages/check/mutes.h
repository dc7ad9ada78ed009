// What authors allow. In a page file a comment
//
//     <!-- osdmenu-pages: allow RULE: reason -->
//
// allows what a rule says of the element that follows, with all in it; before the outermost element, of the whole file.
// JSON files have a member for it, see allowance.h.
#pragma once

#include <string>
#include <vector>

#include "pages/data/rule.h"

namespace pages {

struct Mute {
    Place place;
    std::string rule;
    std::string reason;
    std::string key;                  ///< of a text or a setting; empty for all
    const Element* element = nullptr; ///< null for the whole file
    bool is_used = false;
};

class Mutes {
public:
    /// The folder must outlive them.
    explicit Mutes(const ResourceFolder& folder);

    /// Takes out what is allowed.
    void apply(std::vector<Finding>& findings);

    /// Warnings of what allows nothing: without a reason, with the name of no rule, or with nothing to allow. measured:
    /// whether the rules that draw pages had their say.
    std::vector<Finding> remarks(bool measured) const;

private:
    std::vector<Mute> mutes_;
};

} // namespace pages
