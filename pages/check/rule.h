// One thing that can be wrong: its name, and the function that finds it.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "pages/check/finding.h"
#include "pages/data/resource_folder.h"

namespace pages {

/// Takes what a rule finds: place, what is wrong, what was expected.
using Complain = std::function<void(const Place& place, const std::string& what, const std::string& expected)>;

struct Rule {
    const char* name;
    Severity severity;
    const char* meaning;                                                   ///< a sentence for the documents
    void (*check)(const ResourceFolder& folder, const Complain& complain); ///< null where another part finds it
};

} // namespace pages
