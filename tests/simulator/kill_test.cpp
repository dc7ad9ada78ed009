// Settings of a camera that is killed at any moment.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include "simulator/core/settings_store.h"
#include "tests/simulator/running_camera.h"

using namespace sim;

/// Lets a camera set one value after the other and kills it right behind some of them. Returns the last value that its
/// log reports.
static int kill_behind(const TempFolder& folder, int values)
{
    const CameraProcess camera("--keys-file '" + folder.path("keys.txt").string() + "' --data '" +
                               folder.path("data").string() + "' 2>&1 >/dev/null");
    int last = -1;
    int seen = 0;
    for (std::string line = camera.next_line(); !line.empty();
         line = camera.next_line()) { // it may set more, to its end
        const std::size_t value = line.find("'Brightness' of 'ImageParam' is now ");
        if (value != std::string::npos && std::sscanf(line.c_str() + value, "%*s %*s %*s %*s %*s %d", &last) == 1 &&
            ++seen == values) {
            camera.send(SIGKILL);
        }
    }
    const int status = camera.end();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the camera ended before";
    return last;
}

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
