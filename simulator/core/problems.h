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

/// At most one problem a file. The log tells when one comes, becomes another one, and goes.
class Problems {
public:
    void set(const Problem& problem);
    void clear(const std::string& file);
    bool has(const std::string& file) const { return by_file_.count(file) > 0; }
    /// All of them, by file.
    std::vector<Problem> list() const;

private:
    std::map<std::string, Problem> by_file_;
};

/// The problem in the words of an error that begins with the path of the file, perhaps with ":LINE".
Problem problem_in(const std::filesystem::path& path, const std::string& file, const std::string& words);

} // namespace sim
