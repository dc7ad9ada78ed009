#include "simulator/core/resource_check.h"

#include <chrono>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>

#include "simulator/core/child_program.h"
#include "simulator/core/guard.h"
#include "simulator/core/resources.h"

namespace sim {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds check_limit{20};

std::vector<std::string> command_for(const fs::path& resources, const fs::path& checker)
{
    // -B: no by-products beside the checker.
    std::vector<std::string> command = {OSD_PYTHON, "-B", checker.string(), resources.string()};
    std::error_code error; // without fonts nothing is said of glyphs
    fs::directory_iterator fonts(staged_fonts(), error);
    if (!error) {
        command.emplace_back("--fonts");
    }
    for (const auto& font : fonts) {
        command.push_back(font.path().string());
    }
    return command;
}

/// The lines of the checker that begin with a file; none at all tell why it failed itself.
std::optional<std::vector<Problem>> problems_in(const std::string& words, const fs::path& resources)
{
    const std::string folder = resources.string() + "/";
    std::vector<Problem> problems;
    std::istringstream lines(words);
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, folder.size(), folder) == 0) {
            const fs::path file = line.substr(0, line.find(':', folder.size()));
            problems.push_back(problem_in(file, file.lexically_relative(resources).string(), line));
        }
    }
    if (problems.empty() && !words.empty()) {
        log_line(LogLevel::Warning, "resources",
                 "they can't be checked against each other: " + words.substr(words.rfind('\n') + 1));
        return std::nullopt;
    }
    return problems;
}

} // namespace

std::optional<std::vector<Problem>> check_resources(const fs::path& resources, const std::atomic<bool>& stop)
{
    const fs::path folder = plain_path(resources);
    const fs::path checker = resource_checker();
    std::error_code ignored; // what can't be looked at can't be run
    if (!fs::exists(checker, ignored)) {
        return std::vector<Problem>();
    }
    const std::string words = run_program(command_for(folder, checker), check_limit, &stop);
    return stop ? std::nullopt : problems_in(words, folder);
}

ResourceCheck::ResourceCheck(fs::path resources, std::function<void(std::vector<Problem>)> tell)
    : resources_(std::move(resources)), tell_(std::move(tell))
{
    thread_ = std::thread([this] { run(); });
}

ResourceCheck::~ResourceCheck()
{
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        ending_ = true;
        changed_.notify_all();
    }
    thread_.join();
}

void ResourceCheck::check_again()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    asked_ = true;
    changed_.notify_all();
}

bool ResourceCheck::is_asked()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return asked_;
}

bool ResourceCheck::wait_for_request()
{
    std::unique_lock<std::mutex> lock(mutex_);
    changed_.wait(lock, [this] { return asked_ || ending_; });
    asked_ = false;
    return !ending_;
}

void ResourceCheck::run()
{
    while (wait_for_request()) {
        (void)guarded("resources", false, [this] {
            auto found = check_resources(resources_, ending_);
            if (found && !is_asked()) { // else it may tell of what has been mended since
                tell_(std::move(*found));
            }
            return true;
        });
    }
}

} // namespace sim
