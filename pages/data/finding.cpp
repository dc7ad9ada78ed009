#include "pages/data/finding.h"

#include <filesystem>
#include <nlohmann/json.hpp>

#include "pages/data/words.h"

namespace pages {
const char* name_of(Severity severity) { return severity == Severity::Error ? "error" : "warning"; }

std::string words_of(const Finding& finding)
{
    return finding.what + (finding.expected.empty() ? "" : ", expected " + finding.expected);
}

std::string line_of(const Finding& finding, const std::string& folder)
{
    Place place = finding.place;
    place.file = (std::filesystem::path(folder) / place.file).string();
    return on_one_line(to_string(place) + ": " + name_of(finding.severity) + ": " + words_of(finding)) + " [" +
           finding.rule + "]";
}

std::string counted(int count, const std::string& things)
{
    return std::to_string(count) + " " + things + (count == 1 ? "" : "s");
}

std::string to_json(const std::vector<Finding>& findings)
{
    nlohmann::json list = nlohmann::json::array();
    for (const Finding& finding : findings) {
        list.push_back({{"file", finding.place.file},
                        {"line", finding.place.line},
                        {"column", finding.place.column},
                        {"severity", name_of(finding.severity)},
                        {"rule", finding.rule},
                        {"what", finding.what},
                        {"expected", finding.expected}});
    }
    return nlohmann::json{{"findings", list}}.dump(2, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace pages
