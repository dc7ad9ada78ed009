// Ctrl-C and its relatives.
#pragma once

#include <csignal>
#include <functional>
#include <thread>

namespace sim {

/// While one lives, SIGINT and SIGTERM don't end the process but call a function, on a thread of its own; a second one
/// ends the process at once. Threads that are to leave the signals alone must be started later.
class StopSignals {
public:
    explicit StopSignals(std::function<void()> stop);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

private:
    sigset_t signals_{};
    sigset_t before_{};
    std::thread thread_;
};

} // namespace sim
