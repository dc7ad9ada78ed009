#include "pages/check/check.h"

#include <algorithm>
#include <tuple>

#include "pages/measure/measure.h"
#include "pages/menu/menu.h"

namespace pages {
namespace {

auto order(const Finding& finding)
{
    return std::tie(finding.place.file, finding.place.line, finding.place.column, finding.rule, finding.what);
}

class Check {
public:
    explicit Check(const ResourceFolder& folder) : folder_(folder) {}

    void run_rules()
    {
        for (const Rule& rule : all_rules()) {
            if (rule.check != nullptr) {
                rule.check(folder_, [&](const Place& place, const std::string& what, const std::string& expected) {
                    findings_.push_back({place, rule.severity, rule.name, what, expected});
                });
            }
        }
    }

    void run_measure(const CheckOptions& options)
    {
        if (options.measure) {
            const std::vector<Finding> found = measure(folder_, {options.measured_pages, {}}).findings;
            findings_.insert(findings_.end(), found.begin(), found.end());
        }
    }

    std::vector<Finding> take()
    {
        std::sort(findings_.begin(), findings_.end(),
                  [](const Finding& a, const Finding& b) { return order(a) < order(b); });
        const auto same = [](const Finding& a, const Finding& b) { return order(a) == order(b); };
        findings_.erase(std::unique(findings_.begin(), findings_.end(), same), findings_.end());
        return std::move(findings_);
    }

private:
    const ResourceFolder& folder_;
    std::vector<Finding> findings_;
};

} // namespace

CheckResult check(const ResourceFolder& folder, const CheckOptions& options)
{
    Check checking(folder);
    checking.run_rules();
    checking.run_measure(options);
    return {checking.take(), {}};
}

} // namespace pages
