#include "pages/check/mutes.h"

#include <algorithm>
#include <tuple>

#include "pages/check/check.h"
#include "pages/check/rule_tables.h"
#include "pages/grammar/page_walk.h"
#include "pages/measure/judge.h"

namespace pages {
namespace {

constexpr std::string_view begin_mark = "osdmenu-pages:";
constexpr std::string_view allow_word = "allow ";
constexpr std::string_view blanks = " \t\r\n";

std::string trimmed(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == text.npos ? "" : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

bool is_before(const Place& a, const Place& b) { return std::tie(a.line, a.column) < std::tie(b.line, b.column); }

/// The element that follows a comment; null where that is the whole page, or where none follows.
const Element* element_behind(const PageFile& page, const Comment& comment)
{
    const Element* behind = nullptr;
    if (page.root != nullptr && is_before(page.root->place, comment.place)) {
        for_each_element(*page.root, [&](const Element& element) {
            if (behind == nullptr && is_before(comment.place, element.place)) {
                behind = &element;
            }
        });
        behind = behind == nullptr ? page.root.get() : behind;
    }
    return behind;
}

/// A comment that allows nothing for a slip of its words has no rule.
void read_comment(const PageFile& page, const Comment& comment, std::vector<Mute>& mutes)
{
    const std::string words = trimmed(comment.text);
    if (words.compare(0, begin_mark.size(), begin_mark) != 0) {
        return;
    }
    const std::string order = trimmed(words.substr(begin_mark.size()));
    const std::string allowed =
        order.compare(0, allow_word.size(), allow_word) == 0 ? order.substr(allow_word.size()) : "";
    const std::size_t colon = allowed.find(':');
    mutes.push_back({comment.place, trimmed(allowed.substr(0, colon)),
                     colon == allowed.npos ? "" : trimmed(allowed.substr(colon + 1)), "",
                     element_behind(page, comment)});
}

std::vector<Mute> read_mutes(const ResourceFolder& folder)
{
    std::vector<Mute> mutes;
    for (const auto& [name, page] : folder.pages) {
        for (const Comment& comment : page.comments) {
            read_comment(page, comment, mutes);
        }
    }
    for (const Allowance& allowed : folder.allowances) {
        mutes.push_back({allowed.place, allowed.rule, trimmed(allowed.reason), allowed.key});
    }
    return mutes;
}

bool holds(const Mute& mute, const Finding& finding)
{
    if (mute.rule != finding.rule || mute.place.file != finding.place.file || mute.reason.empty()) {
        return false;
    }
    if (mute.element != nullptr) {
        return !is_before(finding.place, mute.element->place) && finding.place.line <= mute.element->last_line;
    }
    return mute.key.empty() || mute.key == finding.key || finding.what.find("'" + mute.key + "'") != std::string::npos;
}

bool is_among(const std::vector<Rule>& rules, const std::string& name)
{
    return std::any_of(rules.begin(), rules.end(), [&](const Rule& rule) { return rule.name == name; });
}

void tell(const Mute& mute, bool measured, std::vector<Finding>& findings)
{
    const auto warn = [&](const std::string& what, const std::string& expected) {
        findings.push_back({mute.place, Severity::Warning, allowance_rule, what, expected});
    };
    if (mute.rule.empty()) {
        warn("this allows nothing", "osdmenu-pages: allow RULE: reason");
    } else if (!is_among(all_rules(), mute.rule)) {
        std::vector<std::string> names;
        for (const Rule& one : all_rules()) {
            names.emplace_back(one.name);
        }
        warn("there is no rule '" + mute.rule + "'", nearest_or(mute.rule, names, "one of 'check --rules'"));
    } else if (mute.reason.empty()) {
        warn("no reason is given to allow '" + mute.rule + "'", "RULE: reason");
    } else if (!mute.is_used && (measured || !is_among(measure_rules(), mute.rule))) {
        warn("there is nothing here that rule '" + mute.rule + "' complains of", "");
    }
}

} // namespace

Mutes::Mutes(const ResourceFolder& folder) : mutes_(read_mutes(folder)) {}

void Mutes::apply(std::vector<Finding>& findings)
{
    const auto is_muted = [&](const Finding& finding) {
        bool muted = false;
        for (Mute& mute : mutes_) {
            if (holds(mute, finding)) {
                mute.is_used = true;
                muted = true;
            }
        }
        return muted;
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), is_muted), findings.end());
}

std::vector<Finding> Mutes::remarks(bool measured) const
{
    std::vector<Finding> findings;
    for (const Mute& mute : mutes_) {
        tell(mute, measured, findings);
    }
    return findings;
}

} // namespace pages
