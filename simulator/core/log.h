// The camera's log: one line an entry, to standard error.
#pragma once

#include <string_view>

namespace sim {

/// The levels are those of the system log, which the library uses as well.
enum class LogLevel : int { Error = 3, Warning = 4, Info = 6 };

/// Writes "time level tag text" as one line; line breaks inside the text become spaces. Without memory for the
/// line it says so instead.
void log_line(LogLevel level, std::string_view tag, std::string_view text) noexcept;

} // namespace sim
