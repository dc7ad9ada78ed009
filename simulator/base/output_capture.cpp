#include "simulator/base/output_capture.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <unistd.h>

#include "simulator/base/log.h"

namespace sim {
namespace {

void log_trace(std::string_view line)
{
    if (line.find_first_not_of(" \r\t") != line.npos) {
        log_line(LogLevel::Trace, "menu", line);
    }
}

/// Logs the whole lines of the text and leaves the rest.
void log_whole_lines(std::string& text)
{
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n', begin)) {
        log_trace(std::string_view(text).substr(begin, end - begin));
        begin = end + 1;
    }
    text.erase(0, begin);
}

/// Reads until nobody holds the other end any more.
void log_all_lines(int pipe_end)
{
    std::string text;
    std::array<char, 4096> part{};
    for (;;) {
        const ssize_t got = ::read(pipe_end, part.data(), part.size());
        if (got > 0) {
            text.append(part.data(), static_cast<std::size_t>(got));
            log_whole_lines(text);
        } else if (got == 0 || errno != EINTR) {
            log_trace(text);
            return;
        }
    }
}

/// Empties the buffers into whatever standard output is at this moment.
void flush_output()
{
    std::cout.flush();
    std::fflush(stdout);
}

} // namespace

OutputCapture::OutputCapture()
{
    std::array<int, 2> ends{-1, -1};
    real_ = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    if (real_ < 0 || ::pipe2(ends.data(), O_CLOEXEC) != 0) {
        const std::string words = std::generic_category().message(errno);
        ::close(real_);
        throw std::runtime_error("standard output can't be captured: " + words);
    }
    flush_output();
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[1]); // standard output is the pipe's only way in, so that its end is the end of the reader
    pipe_end_ = ends[0];
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    reader_ = std::thread(log_all_lines, pipe_end_);
}

OutputCapture::~OutputCapture()
{
    flush_output();
    ::dup2(real_, STDOUT_FILENO);
    std::setvbuf(stdout, nullptr, ::isatty(STDOUT_FILENO) != 0 ? _IOLBF : _IOFBF, BUFSIZ);
    reader_.join();
    ::close(pipe_end_);
    ::close(real_);
}

void OutputCapture::print(std::string_view text) const
{
    while (!text.empty()) {
        const ssize_t written = ::write(real_, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return; // nobody reads it any more
        }
        text.remove_prefix(static_cast<std::size_t>(written > 0 ? written : 0));
    }
}

} // namespace sim
