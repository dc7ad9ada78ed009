#include "tests/fake/calls.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <gtest/gtest.h>
#include <regex>

namespace fake {

Calls& calls()
{
    static Calls instance;
    return instance;
}

bool fails(const std::string& name)
{
    const int count = ++calls().counts[name];
    const auto it = calls().failing.find(name);
    return it != calls().failing.end() && count >= it->second.first && count <= it->second.second;
}

void failCall(const std::string& name, int n, int last)
{
    const int count = calls().counts[name];
    calls().failing[name] = {count + n, count + std::max(n, last)};
}

void record(const std::string& line) { calls().lines.push_back(line); }

std::string format(const char* pattern, ...)
{
    char text[4352];
    va_list arguments;
    va_start(arguments, pattern);
    (void)vsnprintf(text, sizeof text, pattern, arguments);
    va_end(arguments);
    return text;
}

std::string baseName(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

std::vector<std::string> linesOf(const std::vector<std::string>& words)
{
    std::vector<std::string> found;
    for (const std::string& line : calls().lines) {
        if (std::any_of(words.begin(), words.end(), [&](const auto& word) { return line.rfind(word, 0) == 0; })) {
            found.push_back(line);
        }
    }
    return found;
}

static const std::regex& compiled(const std::string& pattern)
{
    static std::map<std::string, std::regex> all;
    return all.try_emplace(pattern, pattern).first->second;
}

std::string replaced(const std::string& text, const std::string& pattern, const std::string& with)
{
    return std::regex_replace(text, compiled(pattern), with);
}

std::vector<std::string> matched(const std::string& text, const std::string& pattern)
{
    std::smatch match;
    return std::regex_match(text, match, compiled(pattern)) ? std::vector<std::string>(match.begin() + 1, match.end())
                                                            : std::vector<std::string>();
}

std::string printed(const std::function<void()>& function)
{
    testing::internal::CaptureStdout();
    function();
    (void)fflush(stdout);
    const std::string captured = testing::internal::GetCapturedStdout();
    if (testing::Test::HasFailure()) {
        (void)fputs(captured.c_str(), stdout); // what failed stands there too
    }
    const std::string lines = replaced(captured, R"((\w+)([ :-])\d+)", "F$2L");
    return replaced(lines, R"(\w+( don't find ))", "F$1");
}

} // namespace fake
