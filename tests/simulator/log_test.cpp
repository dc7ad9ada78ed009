// Who hears the log, and standard output as a part of it.
#include <cstdio>
#include <gmock/gmock.h>
#include <string>
#include <thread>
#include <vector>

#include "simulator/base/log.h"
#include "simulator/base/output_capture.h"

using namespace sim;
using namespace testing;

TEST(Log, TellsListeners)
{
    internal::CaptureStdout();
    internal::CaptureStderr();
    std::vector<std::string> heard;
    {
        const LogListener listener([&heard](const LogEntry& entry) {
            heard.push_back(entry.level + " " + entry.tag + ": " + entry.text);
            log_line(LogLevel::Info, "listener", "heard it");
        });
        std::thread([] { log_line(LogLevel::Warning, "other ", "two\nlines\n"); }).join();
        const OutputCapture capture;
        std::printf("[osdPageParse:144] \n\nsecond ");
        std::printf("line\nno end");
        capture.print("the one line\n");
    }
    log_line(LogLevel::Error, "late", "unheard");
    std::puts("behind");
    std::fflush(stdout);
    EXPECT_THAT(heard, ElementsAre("WARN other: two lines", "TRACE menu: [osdPageParse:144]", "TRACE menu: second line",
                                   "TRACE menu: no end"));
    EXPECT_EQ(internal::GetCapturedStdout(), "the one line\nbehind\n");
    EXPECT_THAT(internal::GetCapturedStderr(),
                AllOf(MatchesRegex("[^ ]+ WARN other two lines\n[^ ]+ INFO listener heard it\n(.*\n)*"),
                      EndsWith(" ERROR late unheard\n")));
}
