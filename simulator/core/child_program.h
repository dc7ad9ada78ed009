// Other programs that the camera runs.
#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <vector>

namespace sim {

/// Runs a program, found as the shell finds it, with its arguments, and waits for its end. Returns why it failed: what
/// it wrote to standard error, or what became of it; empty when it succeeded. One that isn't done in time is killed, or as
/// soon as stop, if given, becomes true.
std::string run_program(const std::vector<std::string>& command, std::chrono::milliseconds limit,
                        const std::atomic<bool>* stop = nullptr);

/// Starts a program that may outlive the camera and doesn't wait for it. Returns why it can't be run; empty when it runs.
std::string leave_program(const std::vector<std::string>& command);

} // namespace sim
