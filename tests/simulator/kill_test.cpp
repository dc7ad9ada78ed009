// Settings of a camera that is killed at any moment.
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "simulator/core/settings_store.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;

namespace {

/// Starts a camera that sets one value after the other; its log comes through the pipe.
pid_t start_camera(const TempFolder& folder, int log)
{
    const std::string keys = folder.path("keys.txt").string();
    const std::string data = folder.path("data").string();
    const char* const words[] = {CAMERA_SIM, "--keys-file", keys.c_str(), "--data", data.c_str(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&files, log, STDERR_FILENO);
    pid_t child = -1;
    EXPECT_EQ(posix_spawn(&child, words[0], &files, nullptr, const_cast<char* const*>(words), environ), 0);
    posix_spawn_file_actions_destroy(&files);
    return child;
}

/// Lets a camera set values and kills it right behind some of them. Returns the last value that its log reports.
int kill_behind(const TempFolder& folder, int values)
{
    int ends[2];
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    const pid_t child = start_camera(folder, ends[1]);
    close(ends[1]);
    const std::unique_ptr<FILE, int (*)(FILE*)> log(fdopen(ends[0], "r"), &fclose);
    int last = -1;
    int seen = 0;
    char line[512];
    while (fgets(line, sizeof line, log.get()) != nullptr) { // to the end: it may have set more before it died
        const char* value = std::strstr(line, "'Brightness' of 'ImageParam' is now ");
        if (value != nullptr && std::sscanf(value, "%*s %*s %*s %*s %*s %d", &last) == 1 && ++seen == values) {
            kill(child, SIGKILL);
        }
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the camera ended before";
    return last;
}

} // namespace

TEST(Killed, KeepsEachValueThatItReported)
{
    const TempFolder folder;
    std::string keys = "menu\nhome\n";
    for (int i = 0; i < 500; ++i) {
        keys += "right\n";
    }
    folder.write("keys.txt", keys);
    for (const int values : {1, 12, 30}) {
        const int last = kill_behind(folder, values);
        SettingsStore store(folder.path("data/settings.db")); // throws when it isn't healthy
        const int stored = std::stoi(store.load_all().at({"ImageParam", "Brightness"}));
        const int next = last == 100 ? 0 : last + 1; // may have been stored, and its line not written
        EXPECT_TRUE(stored == last || stored == next) << stored << " is stored, " << last << " was reported";
    }
}
