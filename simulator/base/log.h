// The camera's log: one line an entry, to standard error and to whoever listens.
#pragma once

#include <functional>
#include <list>
#include <string>
#include <string_view>

namespace sim {

/// The levels are those of the system log, which the library uses as well; behind them its trace.
enum class LogLevel : int { Error = 3, Warning = 4, Info = 6, Trace = 8 };

struct LogEntry {
    std::string time; ///< of the day, "12:34:56.789"
    std::string level;
    std::string tag;
    std::string text; ///< one line; whatever bytes the writer gave, so not always UTF-8
};

/// Writes "time level tag text" as one line; line breaks inside the text become spaces. Without memory for the
/// line it says so instead.
void log_line(LogLevel level, std::string_view tag, std::string_view text) noexcept;

/// Hears each entry of the log while it lives.
class LogListener {
public:
    using Function = std::function<void(const LogEntry& entry)>;

    /// The function is called on whatever thread writes, one entry at a time. What it writes itself goes to standard
    /// error only, and what it throws is dropped. It must not make or destroy a listener.
    explicit LogListener(Function function);
    /// Behind this the function isn't running any more.
    ~LogListener();
    LogListener(const LogListener&) = delete;
    LogListener& operator=(const LogListener&) = delete;

private:
    std::list<Function>::iterator place_;
};

} // namespace sim
