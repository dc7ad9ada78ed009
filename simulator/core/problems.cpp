#include "simulator/core/problems.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "simulator/core/log.h"

namespace sim {
namespace {

bool are_equal(const Problem& one, const Problem& other)
{
    return one.file == other.file && one.line == other.line && one.reason == other.reason;
}

std::string words_of(const Problem& problem)
{
    return problem.file + (problem.line > 0 ? ":" + std::to_string(problem.line) : "") + ": " + problem.reason;
}

} // namespace

void Problems::set(const Problem& problem)
{
    Problem& known = by_file_[problem.file];
    if (!are_equal(known, problem)) {
        known = problem;
        log_line(LogLevel::Error, "resources", words_of(problem));
    }
}

void Problems::clear(const std::string& file)
{
    if (by_file_.erase(file) > 0) {
        log_line(LogLevel::Info, "resources", file + " is in order again");
    }
}

void Problems::set_findings(std::vector<Problem> findings)
{
    findings_.swap(findings); // now these are the earlier ones
    for (const Problem& finding : findings_) {
        const auto is_it = [&finding](const Problem& earlier) { return are_equal(earlier, finding); };
        if (!has(finding.file) && std::none_of(findings.begin(), findings.end(), is_it)) {
            log_line(LogLevel::Warning, "resources", words_of(finding));
        }
    }
    if (findings_.empty() && !findings.empty()) {
        log_line(LogLevel::Info, "resources", "pages, texts and settings fit each other again");
    }
}

std::vector<Problem> Problems::list() const
{
    std::vector<Problem> all;
    for (const auto& [file, problem] : by_file_) {
        all.push_back(problem);
    }
    std::copy_if(findings_.begin(), findings_.end(), std::back_inserter(all),
                 [this](const Problem& finding) { return !has(finding.file); });
    return all;
}

Problem problem_in(const std::filesystem::path& path, const std::string& file, const std::string& words)
{
    Problem problem{file, 0, words};
    const std::string& place = path.string();
    if (words.compare(0, place.size(), place) != 0) {
        return problem;
    }
    std::size_t end = place.size();
    if (words.compare(end, 1, ":") == 0) {
        char* behind = nullptr;
        problem.line = static_cast<int>(std::strtol(words.c_str() + end + 1, &behind, 10));
        end = problem.line > 0 ? static_cast<std::size_t>(behind - words.c_str()) : end;
    }
    const std::size_t begin = words.find_first_not_of(": ", end);
    problem.reason = begin == words.npos ? words : words.substr(begin);
    return problem;
}

} // namespace sim
