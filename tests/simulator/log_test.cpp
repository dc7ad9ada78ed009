// Who hears the log, and standard output as a part of it.
#include <cstdio>
#include <gmock/gmock.h>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "simulator/core/log.h"
#include "simulator/core/output_capture.h"

using namespace sim;
using namespace testing;

TEST(Log, TellsListeners)
{
    testing::internal::CaptureStderr();
    std::vector<std::string> heard;
    std::optional<LogListener> listener;
    listener.emplace([&heard](const LogEntry& entry) {
        heard.push_back(entry.level + " " + entry.tag + ": " + entry.text);
        log_line(LogLevel::Info, "listener", "heard it");
    });
    std::thread([] { log_line(LogLevel::Warning, "other ", "two\nlines\n"); }).join();
    listener.reset();
    log_line(LogLevel::Error, "late", "unheard");
    EXPECT_THAT(heard, ElementsAre("WARN other: two lines"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                MatchesRegex("[^ ]+ WARN other two lines\n[^ ]+ INFO listener heard it\n[^ ]+ ERROR late unheard\n"));
}

TEST(Log, TakesStandardOutputIn)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    std::vector<std::string> heard;
    {
        const LogListener listener(
            [&heard](const LogEntry& entry) { heard.push_back(entry.level + " " + entry.text); });
        const OutputCapture capture;
        std::printf("[osdPageParse:144] \n\nsecond ");
        std::printf("line\nno end");
        capture.print("the one line\n");
    }
    std::puts("behind");
    std::fflush(stdout);
    EXPECT_THAT(heard, ElementsAre("TRACE [osdPageParse:144]", "TRACE second line", "TRACE no end"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "the one line\nbehind\n");
    (void)testing::internal::GetCapturedStderr();
}
