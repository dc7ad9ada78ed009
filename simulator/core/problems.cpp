#include "simulator/core/problems.h"

#include <cstdlib>

#include "simulator/core/log.h"

namespace sim {

void Problems::set(const Problem& problem)
{
    Problem& known = by_file_[problem.file];
    if (known.line == problem.line && known.reason == problem.reason) {
        return;
    }
    known = problem;
    const std::string line = problem.line > 0 ? ":" + std::to_string(problem.line) : "";
    log_line(LogLevel::Error, "resources", problem.file + line + ": " + problem.reason);
}

void Problems::clear(const std::string& file)
{
    if (by_file_.erase(file) > 0) {
        log_line(LogLevel::Info, "resources", file + " is in order again");
    }
}

std::vector<Problem> Problems::list() const
{
    std::vector<Problem> all;
    for (const auto& [file, problem] : by_file_) {
        all.push_back(problem);
    }
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
