#include "simulator/base/log.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <exception>
#include <mutex>
#include <new>
#include <string>
#include <utility>

namespace sim {
namespace {

constexpr std::array<const char*, 9> level_names = {"EMERG", "ALERT", "CRIT",  "ERROR", "WARN",
                                                    "NOTE",  "INFO",  "DEBUG", "TRACE"};

struct Listeners {
    std::mutex mutex; ///< held while a listener runs, so that none runs behind its removal
    std::list<LogListener::Function> functions;
};

Listeners& listeners()
{
    static auto* const all = new Listeners; // for the life of the process: threads may log to its end
    return *all;
}

thread_local bool inside_listener = false;

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

LogEntry entry_of(LogLevel level, std::string_view tag, std::string_view text)
{
    const auto index = std::clamp<std::size_t>(static_cast<std::size_t>(level), 0, level_names.size() - 1);
    return {time_of_day(), level_names[index], on_one_line(tag), on_one_line(text)};
}

void tell_listeners(const LogEntry& entry)
{
    if (inside_listener) {
        return;
    }
    Listeners& all = listeners();
    const std::lock_guard<std::mutex> lock(all.mutex);
    inside_listener = true;
    for (const LogListener::Function& function : all.functions) {
        try {
            function(entry);
        } catch (const std::exception&) { // the log can't report its own listener
        }
    }
    inside_listener = false;
}

} // namespace

void log_line(LogLevel level, std::string_view tag, std::string_view text) noexcept
{
    try {
        const LogEntry entry = entry_of(level, tag, text);
        const std::string line = entry.time + " " + entry.level + " " + entry.tag + " " + entry.text + "\n";
        std::fwrite(line.data(), 1, line.size(), stderr); // one call, so that lines of two threads don't mix
        tell_listeners(entry);
    } catch (const std::bad_alloc&) {
        std::fputs("no memory for a line of the log\n", stderr);
    }
}

LogListener::LogListener(Function function)
{
    Listeners& all = listeners();
    const std::lock_guard<std::mutex> lock(all.mutex);
    place_ = all.functions.insert(all.functions.end(), std::move(function));
}

LogListener::~LogListener()
{
    Listeners& all = listeners();
    const std::lock_guard<std::mutex> lock(all.mutex);
    all.functions.erase(place_);
}

} // namespace sim
