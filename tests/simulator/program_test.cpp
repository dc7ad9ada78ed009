// camera-sim as a user runs it: exit status, its one line on a mistake, and the pictures it writes.
#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <sys/wait.h>

#include "simulator/core/data_folder.h"
#include "tests/simulator/temp_folder.h"

using testing::HasSubstr;

namespace {

struct Result {
    int status = -1;
    std::string errors; ///< standard error, the camera's log left out
};

/// Runs camera-sim without a display in the folder, with its data there.
Result run_camera(const TempFolder& folder, const std::string& arguments)
{
    const std::string command = "cd '" + folder.path().string() +
                                "' && env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME=\"$PWD\" '" CAMERA_SIM "' " +
                                arguments + " 2>&1 >/dev/null";
    Result result;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 1024> line{};
    while (fgets(line.data(), line.size(), pipe) != nullptr) {
        const std::string text = line.data();
        const bool log = text.size() > 12 && text[2] == ':' && text[5] == ':' && text[8] == '.';
        result.errors += log ? "" : text;
    }
    const int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace

TEST(Program, RefusesBadInputInOneLine)
{
    const TempFolder folder;
    folder.write("busy.png/x", "");
    struct Case {
        const char* arguments;
        const char* words;
    };
    const Case cases[] = {
        {"--colour", "--colour"},
        {"--keys 'menu jump' --snapshot a.png", "unknown key 'jump', expected one of: menu home up"},
        {"--keys menu --channel 3", "--channel"},
        {"--keys menu --size 8k", "1080p"},
        {"--keys menu --format rgb", "argb4444"},
        {"--keys menu --style 3", "--style"},
        {"--keys menu --language Klingon", "expected one of English"},
        {"--keys menu --page nowhere", "unknown page 'nowhere', expected one of: "},
        {"--keys menu --data /dev/null/x", "can't be made"},
        {"--snapshot no/such/a.png", "can't write there"},
        {"--snapshot busy.png", "a folder has this name"},
        {"--snapshot a.jpg", "ends in .png"},
        {"--window --snapshot a.png", "can't be used together"},
    };
    for (const Case& test : cases) {
        const Result result = run_camera(folder, test.arguments);
        EXPECT_EQ(result.status, 2) << test.arguments;
        EXPECT_THAT(result.errors, testing::StartsWith("camera-sim: ")) << test.arguments;
        EXPECT_THAT(result.errors, HasSubstr(test.words)) << test.arguments;
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path("a.png")));
    EXPECT_EQ(run_camera(folder, "--help").status, 0);
}

TEST(Program, WritesTheSamePictureTwice)
{
    const TempFolder folder;
    const std::string common = "--still --language English --format argb4444 --channel 1 --snapshot ";
    for (const char* rest : {"bare.png", "first.png --keys menu", "second.png --keys menu"}) {
        const Result result = run_camera(folder, common + rest);
        EXPECT_EQ(result.status, 0) << result.errors;
    }
    EXPECT_EQ(folder.read("first.png"), folder.read("second.png"));
    EXPECT_NE(folder.read("first.png"), folder.read("bare.png"));
    EXPECT_EQ(folder.read("first.png").substr(16, 8), std::string("\0\0\x05\0\0\0\x02\xD0", 8)); // 1280 by 720
    EXPECT_EQ(run_camera(folder, "").status, 0);
    EXPECT_TRUE(std::filesystem::exists(folder.path("camera.png"))); // nothing asked for, no display
}

TEST(Program, LeavesADamagedDatabaseToItsOwner)
{
    const TempFolder folder;
    const std::string damaged(4000, '?');
    folder.write("camera-sim/settings.db", damaged);
    const Result refused = run_camera(folder, "--keys menu");
    EXPECT_EQ(refused.status, 2);
    EXPECT_THAT(refused.errors, HasSubstr("--reset"));
    EXPECT_EQ(folder.read("camera-sim/settings.db"), damaged);
    EXPECT_EQ(run_camera(folder, "--keys menu --reset").status, 0);
    EXPECT_EQ(folder.read("camera-sim/settings.db.bak"), damaged);
    EXPECT_EQ(run_camera(folder, "--keys menu").status, 0);

    const sim::DataFolder other(folder.path("camera-sim"));
    const Result second = run_camera(folder, "--keys menu");
    EXPECT_EQ(second.status, 2);
    EXPECT_THAT(second.errors, HasSubstr("another camera runs on it"));
}
