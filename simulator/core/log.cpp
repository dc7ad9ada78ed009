#include "simulator/core/log.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <new>
#include <string>

namespace sim {
namespace {

constexpr std::array<const char*, 8> level_names = {"EMERG", "ALERT", "CRIT", "ERROR", "WARN", "NOTE", "INFO", "DEBUG"};

std::string time_of_day()
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    const auto millis = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm parts{};
    localtime_r(&seconds, &parts);
    std::array<char, 32> text{};
    const std::size_t used = std::strftime(text.data(), text.size(), "%H:%M:%S", &parts);
    std::snprintf(text.data() + used, text.size() - used, ".%03d", static_cast<int>(millis));
    return text.data();
}

std::string on_one_line(std::string_view text)
{
    std::string line(text.substr(0, text.find_last_not_of(" \n\r\t") + 1));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return line;
}

} // namespace

void log_line(LogLevel level, std::string_view tag, std::string_view text) noexcept
{
    try {
        const auto index = static_cast<std::size_t>(std::clamp(static_cast<int>(level), 0, 7));
        const std::string line =
            time_of_day() + " " + level_names[index] + " " + on_one_line(tag) + " " + on_one_line(text) + "\n";
        std::fwrite(line.data(), 1, line.size(), stderr); // one call, so that lines of two threads don't mix
    } catch (const std::bad_alloc&) {
        std::fputs("no memory for a line of the log\n", stderr);
    }
}

} // namespace sim
