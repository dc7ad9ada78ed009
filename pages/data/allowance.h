// What an author allows although the check complains of it, in a JSON file, which can't hold a comment:
//
//     "osdmenu-pages": {"RULE KEY": "reason"}
//
// at the top level allows what the rule says of the text or the setting of that key; "RULE" alone allows it in the whole
// file. The menu and the camera pass over this member.
#pragma once

#include <string>
#include <vector>

#include "pages/data/errors.h"
#include "pages/data/json_file.h"

namespace pages {

inline const std::string allowance_member = "osdmenu-pages";

struct Allowance {
    Place place;
    std::string rule;
    std::string key; ///< empty for all
    std::string reason;
};

/// Adds what the file allows. Throws BadInput for a member that is no object of texts.
void read_allowances(const nlohmann::json& root, const JsonPlaces& places, std::vector<Allowance>& allowances);

} // namespace pages
