// The one thread that touches the menu, and how other threads reach it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace sim {

/// Runs tasks one after the other on the thread that calls run(). The menu's library wants its calls one at a time.
class MenuLoop {
public:
    using Clock = std::chrono::steady_clock;
    /// Does what is due and says when something will be due again, if ever.
    using Tick = std::function<std::optional<Clock::time_point>()>;

    /// Runs tasks until stop() is called. The tick runs before the first task, behind each one, and when its time has
    /// come. What a task or tick throws comes out of here, but not of a task of call().
    void run(const Tick& tick);

    /// Ends run() behind the task under way; tasks that still wait are dropped, and later ones too. Any thread.
    void stop();

    /// Leaves a task for later. Any thread.
    void post(std::function<void()> task);

    /// Has a task run, waits for it and passes on its result or what it throws. Any thread but that of run(). Throws
    /// std::future_error when the loop has stopped.
    template <typename Task>
    auto call(Task task) -> decltype(task())
    {
        auto packaged = std::make_shared<std::packaged_task<decltype(task())()>>(std::move(task));
        auto result = packaged->get_future();
        // The queue becomes the only owner: a task that is dropped there breaks its promise.
        post([packaged = std::move(packaged)] { (*packaged)(); });
        return result.get();
    }

private:
    std::optional<std::function<void()>> next(const std::optional<Clock::time_point>& until);

    std::mutex mutex_; ///< guards the members below
    std::condition_variable changed_;
    std::deque<std::function<void()>> tasks_;
    bool stopped_ = false;
};

} // namespace sim
