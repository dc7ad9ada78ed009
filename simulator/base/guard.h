// The way out of functions that C code calls.
#pragma once

#include <exception>
#include <string_view>

#include "simulator/base/log.h"

namespace sim {

/// Runs the whole body of such a function: no exception may pass into C code, so what is thrown goes to the log and
/// the answer is on_failure.
template <typename Result, typename Body>
Result guarded(std::string_view tag, Result on_failure, Body body) noexcept
{
    try {
        return body();
    } catch (const std::exception& error) {
        log_line(LogLevel::Error, tag, error.what());
        return on_failure;
    }
}

} // namespace sim
