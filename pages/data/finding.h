// What is wrong with a folder of resources, in words that its author can act on.
#pragma once

#include <string>
#include <vector>

#include "pages/data/errors.h"
#include "pages/data/words.h"

namespace pages {

/// What shows or works wrongly, or isn't read at all; what works, but can't be meant.
enum class Severity { Error, Warning };

/// "error" or "warning"
const char* name_of(Severity severity);

struct Finding {
    Place place; ///< the file below the folder
    Severity severity = Severity::Error;
    std::string rule; ///< its name, by which a finding can be muted
    std::string what;
    std::string expected; ///< may be empty
    std::string key{};    ///< of the text or the setting that it is about, where the words don't name it
};

/// "what, expected ...": the words without place and rule.
std::string words_of(const Finding& finding);

/// "FOLDER/FILE:LINE:COLUMN: error: what, expected ... [rule]"
std::string line_of(const Finding& finding, const std::string& folder);

/// "1 more place", "3 more places"
std::string counted(int count, const std::string& things);

/// {"findings": [{"file", "line", "column", "severity", "rule", "what", "expected"}]}, indented.
std::string to_json(const std::vector<Finding>& findings);

} // namespace pages
