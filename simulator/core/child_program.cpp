#include "simulator/core/child_program.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace sim {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t max_words = 65536; // of a program that has much to say
constexpr int look_again_ms = 50;        // whether it is to be stopped

/// Both ends of a pipe; the one to write to can be closed before.
struct Pipe {
    Pipe()
    {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe: " + std::generic_category().message(errno));
        }
    }
    ~Pipe()
    {
        ::close(ends[0]);
        close_writing();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    void close_writing()
    {
        if (ends[1] >= 0) {
            ::close(ends[1]);
            ends[1] = -1;
        }
    }

    std::array<int, 2> ends{-1, -1};
};

/// What a program starts with: nothing to read, nowhere to write to but perhaps for its errors, none of the camera's
/// files, and all signals, which a thread of the camera may have blocked.
struct Surroundings {
    explicit Surroundings(int errors)
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&files, errors < 0 ? STDOUT_FILENO : errors, STDERR_FILENO);
        posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        posix_spawnattr_init(&attributes);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    }
    ~Surroundings()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&files);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

/// Starts the program with its errors going to this file, or nowhere for -1. Why it can't be run; empty when it runs.
std::string start(const std::vector<std::string>& command, int errors, pid_t& child)
{
    std::vector<char*> arguments;
    std::transform(command.begin(), command.end(), std::back_inserter(arguments),
                   [](const std::string& word) { return const_cast<char*>(word.c_str()); });
    arguments.push_back(nullptr);
    const Surroundings around(errors);
    const int error =
        ::posix_spawnp(&child, arguments[0], &around.files, &around.attributes, arguments.data(), environ);
    return error == 0 ? "" : command[0] + " can't be run: " + std::generic_category().message(error);
}

/// How long a program may run.
struct Limit {
    bool is_over() const { return Clock::now() >= until || (stop != nullptr && *stop); }

    Clock::time_point until;
    const std::atomic<bool>* stop;
};

/// Reads until the program has closed its standard error.
std::string read_words(int errors, const Limit& limit)
{
    std::string words;
    std::array<char, 512> part{};
    while (!limit.is_over()) {
        pollfd source{errors, POLLIN, 0};
        if (::poll(&source, 1, look_again_ms) <= 0) {
            continue;
        }
        const ssize_t got = ::read(errors, part.data(), part.size());
        if (got == 0 || (got < 0 && errno != EINTR)) {
            break;
        }
        words.append(part.data(),
                     std::min(static_cast<std::size_t>(std::max<ssize_t>(got, 0)), max_words - words.size()));
    }
    return words;
}

/// Waits for the end of the program, or ends it. The status of one that has ended by itself.
std::optional<int> wait_for_end(pid_t child, const Limit& limit)
{
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (limit.is_over()) {
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            return std::nullopt;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return status;
}

} // namespace

std::string run_program(const std::vector<std::string>& command, std::chrono::milliseconds limit,
                        const std::atomic<bool>* stop)
{
    Pipe errors;
    pid_t child = -1;
    if (std::string problem = start(command, errors.ends[1], child); !problem.empty()) {
        return problem;
    }
    errors.close_writing(); // what remains is the program's, so that its end can be seen
    const Limit while_it_may{Clock::now() + limit, stop};
    const std::string words = read_words(errors.ends[0], while_it_may);
    const std::optional<int> status = wait_for_end(child, while_it_may);
    if (!status) {
        return command[0] + " took longer than " + std::to_string(limit.count()) + " ms, or was no longer wanted";
    }
    if (WIFEXITED(*status) && WEXITSTATUS(*status) == 0) {
        return "";
    }
    return words.empty() ? command[0] + " failed" : words.substr(0, words.find_last_not_of(" \n") + 1);
}

std::string leave_program(const std::vector<std::string>& command)
{
    pid_t child = -1;
    std::string problem = start(command, -1, child);
    if (problem.empty()) {
        std::thread([child] { ::waitpid(child, nullptr, 0); }).detach(); // no zombie is left behind
    }
    return problem;
}

} // namespace sim
