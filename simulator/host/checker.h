// Checks the camera's resources while they change.
#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "pages/data/resource_folder.h"
#include "simulator/base/problems.h"

namespace sim {

/// What files hold, by their path below the resources. One that can't be read is among them and holds nothing.
using Files = std::map<std::string, std::string>;

/// All files of the resources.
Files read_files(const std::filesystem::path& resources);

/// The files that differ, or are in one of both only.
std::set<std::string> differences(const Files& one, const Files& other);

/// The resources as they were at one moment.
struct Resources {
    Files files;
    pages::ResourceFolder folder;
};

struct Verdict {
    std::shared_ptr<const Resources> resources; ///< null when there was nothing to look at
    std::vector<Finding> findings;              ///< by place
    std::set<std::string> refused;              ///< pages that the menu can't show as a whole
};

/// Looks at the resources and checks all but what must be drawn for it. Any thread, one at a time: others wait. The
/// menu's graphics libraries must have been started.
Verdict judge(const std::filesystem::path& resources);

/// Throws BadInput, which tells all that is wrong with them, when the camera can't start with these resources: their
/// settings definitions have a mistake, or a language has no texts.
void require_usable(const std::filesystem::path& resources);

/// Checks resources on a thread of its own: what can be said at once is told first, then what shows when the changed
/// pages are drawn, and all pages in a changed language; when nothing has changed for a second, all is drawn.
class Checker {
public:
    /// The function is called on that thread when there is a verdict to take(), once until somebody takes it. The first
    /// look waits for look_again().
    Checker(std::filesystem::path resources, std::function<void()> tell);
    /// Waits for the end of a check under way.
    ~Checker();
    Checker(const Checker&) = delete;
    Checker& operator=(const Checker&) = delete;

    /// Files have changed; what is being found out of the earlier ones isn't told any more. Any thread.
    void look_again();

    /// All that is known, of the last check. Any thread.
    Verdict take();

private:
    using Clock = std::chrono::steady_clock;
    enum class Step { Look, Measure, End };

    void run();
    Step wait_for_step();
    bool is_overtaken(); ///< what is under way is of no use any more
    void look();
    void choose_files(const Resources* earlier);
    void measure();
    void tell();

    const std::filesystem::path resources_;
    const std::function<void()> tell_;

    Verdict quick_;                 ///< of the last look
    std::vector<Finding> measured_; ///< what showed when pages were drawn, by place
    std::set<std::string> urgent_;  ///< files: what they show is drawn at once
    bool all_due_ = false;          ///< to draw all pages at rest
    Clock::time_point rest_;        ///< when that begins

    std::mutex mutex_; ///< guards what is waited for: the three below
    bool asked_ = false;
    bool ending_ = false;
    std::optional<Verdict> told_; ///< until somebody takes it
    std::condition_variable changed_;
    std::thread thread_;
};

} // namespace sim
