// The build's check of a resource folder, for folders that change.
#pragma once

#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "simulator/core/problems.h"

namespace sim {

/// What the build would refuse in this folder: files that don't fit each other, each with its line where that is known.
/// Runs the programs of the build, so that each rule is written once; without the checkout that they belong to, nothing
/// is found. None for a check that fails, which is a line in the log, or is stopped.
std::optional<std::vector<Problem>> check_resources(const std::filesystem::path& resources,
                                                    const std::atomic<bool>& stop);

/// Checks a folder on a thread of its own, as it takes a while: at the start and whenever it is asked.
class ResourceCheck {
public:
    /// The function is called on that thread with all that was found.
    ResourceCheck(std::filesystem::path resources, std::function<void(std::vector<Problem>)> tell);
    /// Ends a check that runs.
    ~ResourceCheck();
    ResourceCheck(const ResourceCheck&) = delete;
    ResourceCheck& operator=(const ResourceCheck&) = delete;

    /// A check that runs doesn't count any more. Any thread.
    void check_again();

private:
    void run();
    /// False when there will be no more.
    bool wait_for_request();
    bool is_asked();

    const std::filesystem::path resources_;
    const std::function<void(std::vector<Problem>)> tell_;
    std::mutex mutex_; ///< guards what is waited for: the two below
    bool asked_ = true;
    std::atomic<bool> ending_{false};
    std::condition_variable changed_;
    std::thread thread_;
};

} // namespace sim
