// Standard output of the process as a part of the log.
#pragma once

#include <string_view>
#include <thread>

namespace sim {

/// While one lives, what the process prints to standard output becomes lines of the log: level "TRACE", tag "menu". The
/// menu's library prints its trace there. One at a time.
class OutputCapture {
public:
    /// Throws std::runtime_error when the system refuses.
    OutputCapture();
    /// Gives standard output back; all that was printed before is in the log then.
    ~OutputCapture();
    OutputCapture(const OutputCapture&) = delete;
    OutputCapture& operator=(const OutputCapture&) = delete;

    /// Writes to the standard output that was there before.
    void print(std::string_view text) const;

private:
    int real_ = -1;
    int pipe_end_ = -1;
    std::thread reader_;
};

} // namespace sim
