// What is wrong with the camera's resources at present.
#pragma once

#include <tuple>
#include <vector>

#include "pages/data/finding.h"

namespace sim {

using pages::Finding;

/// By place; findings that are equal in it say the same.
inline auto order_of(const Finding& finding)
{
    return std::tie(finding.place.file, finding.place.line, finding.place.column, finding.rule, finding.what,
                    finding.expected);
}

/// The log tells what comes, and which file is in order again.
class Problems {
public:
    /// Puts these in the place of the earlier ones.
    void set(std::vector<Finding> findings);
    const std::vector<Finding>& list() const { return findings_; }

private:
    std::vector<Finding> findings_;
};

} // namespace sim
