#include "simulator/host/menu_loop.h"

namespace sim {

void MenuLoop::run(const Tick& tick)
{
    for (auto until = tick();; until = tick()) {
        const auto task = next(until);
        if (!task) {
            return;
        }
        (*task)();
    }
}

void MenuLoop::stop()
{
    std::deque<std::function<void()>> dropped; // declared first: goes when the lock is released
    const std::lock_guard<std::mutex> lock(mutex_);
    stopped_ = true;
    dropped.swap(tasks_);
    changed_.notify_all();
}

void MenuLoop::post(std::function<void()> task)
{
    const std::lock_guard<std::mutex> lock(mutex_);
    if (!stopped_) {
        tasks_.push_back(std::move(task));
        changed_.notify_one();
    }
}

/// Waits for a task; one that does nothing when the time has come before, none when the loop is to end.
std::optional<std::function<void()>> MenuLoop::next(const std::optional<Clock::time_point>& until)
{
    const auto ready = [this] { return stopped_ || !tasks_.empty(); };
    std::unique_lock<std::mutex> lock(mutex_);
    if (until) {
        changed_.wait_until(lock, *until, ready);
    } else {
        changed_.wait(lock, ready);
    }
    if (stopped_) {
        return std::nullopt;
    }
    if (tasks_.empty()) {
        return [] {};
    }
    std::function<void()> task = std::move(tasks_.front());
    tasks_.pop_front();
    return task;
}

} // namespace sim
