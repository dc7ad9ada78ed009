// The threads that serve requests.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <httplib.h>

namespace sim {

/// Starts threads as they are needed, up to a number; each viewer of a stream holds one. When all are taken a job runs
/// at once on the thread that brings it, and turned_away() is true there: it should only say no.
class Workers : public httplib::TaskQueue {
public:
    explicit Workers(std::size_t most) : most_(most) {}
    ~Workers() override { shutdown(); }
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    void enqueue(std::function<void()> job) override;
    /// Waits for the jobs under way.
    void shutdown() override;

    static bool turned_away();

private:
    bool has_room();
    void work();

    const std::size_t most_;
    std::mutex mutex_; ///< guards the members below
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;
    std::vector<std::thread> threads_;
    std::size_t idle_ = 0;
    bool ending_ = false;
};

} // namespace sim
