#include "simulator/front/browser.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace sim {
namespace {

/// What a program starts with: nothing to read, nowhere to write to, none of the camera's files, and all signals, which
/// a thread of the camera may have blocked.
struct Surroundings {
    Surroundings()
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
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

} // namespace

std::string open_browser(const std::string& address)
{
    std::string program = "xdg-open";
    std::string argument = address;
    const std::array<char*, 3> command = {program.data(), argument.data(), nullptr};
    const Surroundings around;
    pid_t child = -1;
    const int error =
        ::posix_spawnp(&child, program.c_str(), &around.files, &around.attributes, command.data(), environ);
    if (error != 0) {
        return "no browser can be opened: " + program + ": " + std::generic_category().message(error);
    }
    std::thread([child] { ::waitpid(child, nullptr, 0); }).detach(); // no zombie is left behind
    return "";
}

} // namespace sim
