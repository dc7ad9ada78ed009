#include "pages/check/check.h"

#include <algorithm>
#include <tuple>

#include "pages/check/judge.h"
#include "pages/check/mutes.h"
#include "pages/measure/measure.h"

namespace pages {
namespace {

auto order(const Finding& finding)
{
    return std::tie(finding.place.file, finding.place.line, finding.place.column, finding.rule, finding.what);
}

void sort_findings(std::vector<Finding>& findings)
{
    std::sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) { return order(a) < order(b); });
    const auto same = [](const Finding& a, const Finding& b) { return order(a) == order(b); };
    findings.erase(std::unique(findings.begin(), findings.end(), same), findings.end());
}

/// Leaves the first of those with the same words, with the number of the others.
void unite_causes(std::vector<Finding>& findings)
{
    sort_findings(findings);
    std::vector<Finding> causes;
    std::map<std::string, std::pair<std::size_t, int>> seen; // where it stands, how many more there are
    for (Finding& finding : findings) {
        const auto [first, is_new] = seen.emplace(finding.what, std::pair{causes.size(), 0});
        if (is_new) {
            causes.push_back(std::move(finding));
        } else {
            ++first->second.second;
        }
    }
    for (const auto& [what, cause] : seen) {
        if (cause.second > 0) {
            causes[cause.first].what +=
                " (the same at " + std::to_string(cause.second) + " more place" + (cause.second > 1 ? "s" : "") + ")";
        }
    }
    findings = std::move(causes);
}

std::vector<Finding> run_rule(const Rule& rule, const ResourceFolder& folder)
{
    std::vector<Finding> findings;
    if (rule.check != nullptr) {
        rule.check(folder, [&](const Place& place, const std::string& what, const std::string& expected) {
            findings.push_back({place, rule.severity, rule.name, what, expected});
        });
    }
    return findings;
}

/// Whether a later rule says more of the same misspelt word: at its place, with the same word in mind.
bool is_told_again(const Finding& finding, const std::vector<Finding>& later)
{
    return finding.expected.rfind('\'', 0) == 0 && std::any_of(later.begin(), later.end(), [&](const Finding& other) {
               return std::tie(finding.place.file, finding.place.line, finding.place.column) ==
                          std::tie(other.place.file, other.place.line, other.place.column) &&
                      other.expected.compare(0, finding.expected.size(), finding.expected) == 0;
           });
}

/// What all rules find, a finding for a cause.
std::vector<Finding> run_rules(const ResourceFolder& folder)
{
    std::vector<Finding> all;
    const std::vector<Rule>& rules = all_rules();
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        std::vector<Finding> findings = run_rule(*rule, folder);
        const auto again = [&](const Finding& finding) { return is_told_again(finding, all); };
        findings.erase(std::remove_if(findings.begin(), findings.end(), again), findings.end());
        if (rule->told == Told::Once) {
            unite_causes(findings);
        }
        all.insert(all.end(), findings.begin(), findings.end());
    }
    return all;
}

} // namespace

CheckResult check(const ResourceFolder& folder, const CheckOptions& options)
{
    CheckResult result;
    result.findings = run_rules(folder);
    const auto add = [&](const std::vector<Finding>& findings) {
        result.findings.insert(result.findings.end(), findings.begin(), findings.end());
    };
    Verdict verdict = judge_pages(folder, result.findings);
    add(verdict.findings);
    result.refused = std::move(verdict.refused);
    if (options.measure) {
        add(measure(folder, {options.measured_pages, {}}).findings);
    }
    apply_mutes(folder, options.measure && options.measured_pages.empty(), result.findings);
    sort_findings(result.findings);
    return result;
}

} // namespace pages
