// One thing that can be wrong: its name, and the function that finds it.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "pages/data/finding.h"
#include "pages/data/resource_folder.h"

namespace pages {

/// Takes what a rule finds: place, what is wrong, what was expected.
using Complain = std::function<void(const Place& place, const std::string& what, const std::string& expected)>;

/// How its findings are told.
enum class Told {
    Each,  ///< one by one
    Once,  ///< those with the same words are one cause: at the first place, with the number of the others
    Alone, ///< one by one, and what other rules find at the same place follows from it
};

struct Rule {
    const char* name;
    Severity severity;
    const char* meaning;                                                   ///< a sentence for the documents
    void (*check)(const ResourceFolder& folder, const Complain& complain); ///< null where another part finds it
    Told told = Told::Each;
    bool distorts = false; ///< what it finds draws a page otherwise than meant, which is not measured then
};

} // namespace pages
