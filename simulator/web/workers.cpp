#include "simulator/web/workers.h"

#include <exception>
#include <system_error>

#include "simulator/base/log.h"

namespace sim {
namespace {

thread_local bool is_turned_away = false;

/// One request must never end the camera.
void run(const std::function<void()>& job)
{
    try {
        job();
    } catch (const std::exception& error) {
        log_line(LogLevel::Error, "web", error.what());
    }
}

} // namespace

bool Workers::turned_away() { return is_turned_away; }

void Workers::enqueue(std::function<void()> job)
{
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (has_room()) {
            jobs_.push_back(std::move(job));
            changed_.notify_one();
            return;
        }
    }
    is_turned_away = true;
    run(job);
    is_turned_away = false;
}

/// Whether a thread is there for one more job; starts it when need be.
bool Workers::has_room()
{
    if (jobs_.size() < idle_) {
        return true;
    }
    if (threads_.size() == most_) {
        return false;
    }
    try {
        threads_.emplace_back([this] { work(); });
        return true;
    } catch (const std::system_error&) { // the system has no more threads
        return false;
    }
}

void Workers::work()
{
    std::unique_lock<std::mutex> lock(mutex_);
    while (true) {
        ++idle_;
        changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
        --idle_;
        if (jobs_.empty()) {
            return;
        }
        const std::function<void()> job = std::move(jobs_.front());
        jobs_.pop_front();
        lock.unlock();
        run(job);
        lock.lock();
    }
}

void Workers::shutdown()
{
    std::vector<std::thread> threads;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        ending_ = true;
        threads.swap(threads_);
        changed_.notify_all();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace sim
