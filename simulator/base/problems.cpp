#include "simulator/base/problems.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "simulator/base/log.h"

namespace sim {

void Problems::set(std::vector<Finding> findings)
{
    const std::vector<Finding> earlier = std::exchange(findings_, std::move(findings));
    std::set<std::string> mended;
    for (const Finding& finding : earlier) {
        mended.insert(finding.place.file);
    }
    for (const Finding& finding : findings_) {
        mended.erase(finding.place.file);
        const auto is_it = [&finding](const Finding& other) { return order_of(other) == order_of(finding); };
        if (std::none_of(earlier.begin(), earlier.end(), is_it)) {
            const bool error = finding.severity == pages::Severity::Error;
            log_line(error ? LogLevel::Error : LogLevel::Warning, "resources",
                     to_string(finding.place) + ": " + words_of(finding));
        }
    }
    for (const std::string& file : mended) {
        log_line(LogLevel::Info, "resources", file + " is in order again");
    }
}

} // namespace sim
