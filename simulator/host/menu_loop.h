// The one thread that touches the menu, and how other threads reach it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace sim {

/// The loop has been stopped, and a task didn't run.
class LoopStopped : public std::runtime_error {
public:
    LoopStopped() : std::runtime_error("the camera is about to end") {}
};

/// Runs tasks one after the other on the thread that calls run(). The menu's library wants its calls one at a time.
class MenuLoop {
public:
    using Clock = std::chrono::steady_clock;
    /// Does what is due and says when something will be due again, if ever.
    using Tick = std::function<std::optional<Clock::time_point>()>;

    /// Runs tasks until stop() is called. The tick runs before the first task, behind each one, and when its time has
    /// come. What they throw goes to the log.
    void run(const Tick& tick);

    /// Ends run() behind the task under way; tasks that still wait are dropped, and later ones too. Any thread.
    void stop();

    /// Leaves a task for later. Any thread.
    void post(std::function<void()> task);

    /// Has a task run, waits for it and passes on its result or what it throws. Any thread but that of run(). Throws
    /// LoopStopped.
    template <typename Task>
    auto call(Task task) -> decltype(task())
    {
        using Result = decltype(task());
        if constexpr (std::is_void_v<Result>) {
            run_and_wait(task);
        } else {
            std::optional<Result> result;
            run_and_wait([&] { result.emplace(task()); });
            return std::move(*result);
        }
    }

private:
    void run_and_wait(const std::function<void()>& body);
    std::optional<std::function<void()>> next(const std::optional<Clock::time_point>& until);

    std::mutex mutex_; ///< guards the members below
    std::condition_variable changed_;
    std::deque<std::function<void()>> tasks_;
    bool stopped_ = false;
};

} // namespace sim
