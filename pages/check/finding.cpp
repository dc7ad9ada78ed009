#include "pages/check/finding.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <numeric>

namespace pages {
namespace {

/// The Levenshtein distance; letters that differ in case alone count a quarter.
double distance(const std::string& one, const std::string& other)
{
    std::vector<double> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0.0);
    for (std::size_t i = 1; i <= one.size(); ++i) {
        double diagonal = row[0];
        row[0] = static_cast<double>(i);
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const char a = one[i - 1];
            const char b = other[j - 1];
            const bool alike =
                std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
            const double changed = diagonal + (a == b ? 0.0 : alike ? 0.25 : 1.0);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1.0, row[j - 1] + 1.0});
        }
    }
    return row.back();
}

} // namespace

const char* name_of(Severity severity) { return severity == Severity::Error ? "error" : "warning"; }

std::string words_of(const Finding& finding)
{
    return finding.what + (finding.expected.empty() ? "" : ", expected " + finding.expected);
}

std::string line_of(const Finding& finding, const std::string& folder)
{
    Place place = finding.place;
    place.file = (std::filesystem::path(folder) / place.file).string();
    return to_string(place) + ": " + name_of(finding.severity) + ": " + words_of(finding) + " [" + finding.rule + "]";
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

std::string nearest_word(const std::string& word, const std::vector<std::string>& known)
{
    std::string nearest;
    double least = std::max(1.0, static_cast<double>(word.size()) / 3.0);
    for (const std::string& candidate : known) {
        const double far = distance(word, candidate);
        if (far <= least && (nearest.empty() || far < least)) {
            least = far;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace pages
