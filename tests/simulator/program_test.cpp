// camera-sim as a user runs it: exit status, its one line on a mistake, and the pictures it writes.
#include <cstdlib>
#include <gmock/gmock.h>

#include "tests/simulator/temp_folder.h"

using testing::MatchesRegex;

/// Runs camera-sim without a display in the folder, with its data there. Returns what it wrote to standard error, the
/// camera's log left out, and its exit status as a last line.
static std::string run_camera(const TempFolder& folder, const std::string& arguments)
{
    const std::string command = "cd '" + folder.path().string() +
                                "' && { env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME=\"$PWD\" '" CAMERA_SIM "' " +
                                arguments + " 2>&1 >/dev/null; echo $?; } | grep -v '^..:..:..[.]' >result.txt";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return folder.read("result.txt");
}

TEST(Program, RefusesBadInputInOneLine)
{
    const TempFolder folder;
    const std::string damaged(4000, '?');
    folder.write("camera-sim/settings.db", damaged);
    const std::pair<const char*, std::string> cases[] = {
        {"--colour", "--colour"},
        {"--keys 'menu jump' --snapshot a.png", "unknown key 'jump', expected one of: menu home up"},
        {"--keys-file a.txt", "a.txt: can't be read"},
        {"--export a.json --keys menu", "--export and --keys can't be used together"},
        {"--channel 1 --keys menu", "--channel is for --window and --snapshot"},
        {"--scenario case", "no such folder"},
        {"--keys menu --language Klingon", "expected one of English"},
        {"--keys menu --data /dev/null/x", "can't be made"},
        {"--keys menu --faults settings-slow,sabotage", "sabotage"},
        {"--listen 0.0.0.0:0", "add --token TOKEN"},
        {"--listen foo:80", "'foo' is neither an address in numbers"},
        {"--listen '[::1:80'", "expected ADDRESS:PORT"},
        {"--token 'a b'", "expected letters"},
        {"--snapshot no/such/a.png", "can't write there"},
        {"--keys menu", "--reset"},
    };
    for (const auto& [arguments, words] : cases) {
        EXPECT_THAT(run_camera(folder, arguments), MatchesRegex("camera-sim: [^\n]*" + words + "[^\n]*\n2\n"));
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path("a.png")));
    EXPECT_EQ(run_camera(folder, "--keys menu --reset"), "0\n");
    EXPECT_EQ(folder.read("camera-sim/settings.db.bak"), damaged);
    const sim::DataFolder other(folder.path("camera-sim"));
    EXPECT_THAT(run_camera(folder, "--keys menu"), MatchesRegex("camera-sim: .*another camera runs on it.*\n2\n"));
}

TEST(Program, RecordsKeysThatPlayAgain)
{
    const TempFolder folder;
    const std::string common = "--still --language English --format argb4444 --channel 1 --snapshot ";
    EXPECT_EQ(run_camera(folder, common + "bare.png"), "0\n");
    EXPECT_EQ(run_camera(folder, common + "a.png --keys 'menu up,up left' --record keys.txt --data one"), "0\n");
    EXPECT_EQ(run_camera(folder, common + "b.png --keys-file keys.txt --data two"), "0\n");
    EXPECT_EQ(folder.read("a.png"), folder.read("b.png"));
    EXPECT_NE(folder.read("a.png"), folder.read("bare.png"));
    EXPECT_EQ(folder.read("a.png").substr(16, 8), std::string("\0\0\x05\0\0\0\x02\xD0", 8)); // 1280 by 720
    EXPECT_THAT(run_camera(folder, "--keys menu --record keys.txt"), MatchesRegex(".*the file exists; [^\n]*\n2\n"));
}

TEST(Program, TellsWhereAScenarioDiffers)
{
    const TempFolder folder;
    folder.write("case/keys.txt", "menu\n");
    folder.write("case/calls.txt", "# opens\nkey menu\n# wrong\nhide\n");
    EXPECT_THAT(run_camera(folder, "--scenario case"),
                MatchesRegex(".*calls.txt:4: expected 'hide', got 'page main'\n1\n"));
    EXPECT_EQ(run_camera(folder, "--update-scenario case"), "0\n");
    EXPECT_EQ(folder.read("case/calls.txt"), "# opens\nkey menu\n# wrong\npage main\nshow\n");
    EXPECT_EQ(run_camera(folder, "--scenario case"), "0\n");
    folder.write("case/options.json", R"({"settings": {"Zoom": "150"}})");
    EXPECT_THAT(run_camera(folder, "--scenario case"),
                MatchesRegex(".*frame.png: pixel [0-9]+,[0-9]+: .*; case.actual.png shows [^\n]*\n1\n"));
}
