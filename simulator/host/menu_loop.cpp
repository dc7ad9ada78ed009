#include "simulator/host/menu_loop.h"

#include <exception>
#include <future>
#include <memory>

#include "simulator/base/guard.h"

namespace sim {
namespace {

/// Tells whoever waits whether a task ran, or was dropped with this object.
class Turn {
public:
    ~Turn()
    {
        if (!over_) {
            ran_.set_value(false);
        }
    }
    Turn() = default;
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    std::future<bool> ran() { return ran_.get_future(); }
    void end()
    {
        over_ = true;
        ran_.set_value(true);
    }

private:
    std::promise<bool> ran_;
    bool over_ = false;
};

/// Nobody waits for what this throws, and one mistake must not end the camera.
void log_failure(const std::function<void()>& body)
{
    (void)guarded("menu", 0, [&body] {
        body();
        return 0;
    });
}

} // namespace

/// What the body throws is handed over whole: this thread alone owns it when the other one goes on.
void MenuLoop::run_and_wait(const std::function<void()>& body)
{
    std::exception_ptr failure;
    auto turn = std::make_shared<Turn>();
    std::future<bool> ran = turn->ran();
    post([&body, &failure, turn = std::move(turn)] {
        try {
            body();
        } catch (...) {
            failure = std::current_exception();
        }
        turn->end();
    });
    if (!ran.get()) {
        throw LoopStopped();
    }
    if (failure != nullptr) {
        std::rethrow_exception(failure);
    }
}

void MenuLoop::run(const Tick& tick)
{
    while (true) {
        std::optional<Clock::time_point> until;
        log_failure([&] { until = tick(); });
        const auto task = next(until);
        if (!task) {
            return;
        }
        log_failure(*task);
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
