// Seconds since the camera was made.
#pragma once

#include <chrono>

namespace sim {

class Uptime {
public:
    double seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

private:
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace sim
