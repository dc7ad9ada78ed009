#include "pages/check/check.h"

#include <algorithm>
#include <tuple>

#include "pages/check/judge.h"
#include "pages/check/mutes.h"
#include "pages/measure/glyphs.h"
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

/// Of the rules that pass the test.
std::set<std::string> names_of(bool (*test)(const Rule& rule))
{
    std::set<std::string> names;
    for (const Rule& rule : all_rules()) {
        if (test(rule)) {
            names.insert(rule.name);
        }
    }
    return names;
}

/// What a rule finds; what other parts find has their names.
std::vector<Finding> run_rule(const Rule& rule, const ResourceFolder& folder)
{
    std::vector<Finding> findings;
    if (rule.check != nullptr) {
        rule.check(folder, [&](const Place& place, const std::string& what, const std::string& expected) {
            findings.push_back({place, rule.severity, rule.name, what, expected, ""});
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

/// Takes out what follows from another finding at its place.
void drop_followers(std::vector<Finding>& findings)
{
    static const std::set<std::string> alone = names_of([](const Rule& rule) { return rule.told == Told::Alone; });
    std::set<std::tuple<std::string, int, int>> places;
    for (const Finding& finding : findings) {
        if (alone.count(finding.rule) > 0) {
            places.insert({finding.place.file, finding.place.line, finding.place.column});
        }
    }
    const auto follows = [&](const Finding& finding) {
        const Place& place = finding.place;
        return alone.count(finding.rule) == 0 && places.count({place.file, place.line, place.column}) > 0;
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), follows), findings.end());
}

/// What all rules find, the later ones first.
std::vector<Finding> run_rules(const ResourceFolder& folder)
{
    std::vector<Finding> all;
    const std::vector<Rule>& rules = all_rules();
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        std::vector<Finding> findings = run_rule(*rule, folder);
        const auto again = [&](const Finding& finding) { return is_told_again(finding, all); };
        findings.erase(std::remove_if(findings.begin(), findings.end(), again), findings.end());
        all.insert(all.end(), findings.begin(), findings.end());
    }
    drop_followers(all);
    return all;
}

/// All that is wanted but pages that are not drawn as they are meant to be: what shows on these follows from it.
Wanted wanted_undistorted(const CheckOptions& options, const std::vector<Finding>& findings)
{
    static const std::set<std::string> distorting = names_of([](const Rule& rule) { return rule.distorts; });
    std::set<std::string> distorted;
    for (const Finding& finding : findings) {
        if (distorting.count(finding.rule) > 0) {
            distorted.insert(finding.place.file);
        }
    }
    return [=](const PageFile& page, const std::string& language) {
        return distorted.count(page.file) == 0 && (!options.measured || options.measured(page, language)) &&
               !(options.is_given_up && options.is_given_up());
    };
}

} // namespace

std::vector<Finding> by_cause(std::vector<Finding> findings)
{
    static const std::set<std::string> told_once = names_of([](const Rule& rule) { return rule.told == Told::Once; });
    sort_findings(findings);
    std::vector<Finding> causes;
    std::map<std::pair<std::string, std::string>, std::pair<std::size_t, int>> seen; // where it stands, how many more
    for (Finding& finding : findings) {
        const bool once = told_once.count(finding.rule) > 0;
        const auto [first, is_new] = seen.emplace(std::pair{finding.rule, finding.what}, std::pair{causes.size(), 0});
        if (is_new || !once) {
            causes.push_back(std::move(finding));
        } else {
            ++first->second.second;
        }
    }
    for (const auto& [words, cause] : seen) {
        causes[cause.first].what +=
            cause.second > 0 ? " (the same at " + counted(cause.second, "more place") + ")" : "";
    }
    return causes;
}

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
    Mutes mutes(folder);
    mutes.apply(result.findings);
    if (options.measure) {
        std::vector<Finding> measured = missing_fonts(folder);
        if (measured.empty()) {
            measured = measure(folder, wanted_undistorted(options, result.findings)).findings;
        }
        mutes.apply(measured);
        add(measured);
    }
    add(mutes.remarks(options.measure && !options.measured));
    result.findings = by_cause(std::move(result.findings));
    return result;
}

} // namespace pages
