// Which files of the camera's resources are broken at present.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace sim {

struct Problem {
    std::string file; ///< below the resources
    int line = 0;     ///< 0 when it isn't known
    std::string reason;
};

/// One problem for each file that is broken, and what was found in files that can be used all the same. The log tells
/// when a problem comes, becomes another one, and goes.
class Problems {
public:
    void set(const Problem& problem);
    void clear(const std::string& file);
    bool has(const std::string& file) const { return by_file_.count(file) > 0; }
    /// Puts these findings in the place of the earlier ones.
    void set_findings(std::vector<Problem> findings);
    /// All of them, those of broken files first. What was found in a broken file isn't among them: one line says it.
    std::vector<Problem> list() const;

private:
    std::map<std::string, Problem> by_file_;
    std::vector<Problem> findings_;
};

/// The problem in the words of an error that begins with the path of the file, perhaps with ":LINE".
Problem problem_in(const std::filesystem::path& path, const std::string& file, const std::string& words);

} // namespace sim
