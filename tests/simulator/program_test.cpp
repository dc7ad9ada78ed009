// camera-sim as a user runs it: exit status, its one line on a mistake, the pictures it writes, and what it keeps.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include "simulator/settings/settings_store.h"
#include "tests/simulator/camera_process.h"
#include "tests/simulator/temp_folder.h"

using namespace testing;

/// Runs camera-sim in the folder. Returns what it wrote to standard error, the camera's log left out, and its exit
/// status as a last line.
static std::string run_camera(const TempFolder& folder, const std::string& arguments)
{
    const CameraProcess camera(folder.path(), CAMERA_SIM, arguments + " 2>&1 >/dev/null");
    std::string words;
    for (std::string line = camera.next_line(); !line.empty(); line = camera.next_line()) {
        words += std::isdigit(line[0]) != 0 && line[2] == ':' ? "" : line; // the log's lines begin with the time
    }
    return words + std::to_string(WEXITSTATUS(camera.end())) + "\n";
}

TEST(Program, RefusesBadInputInOneLine)
{
    const TempFolder folder;
    const std::string damaged(4000, '?');
    folder.write("camera-sim/settings.db", damaged);
    const std::pair<const char*, const char*> keys_files[] = {
        {"menu\n\njump", "keys.txt:3: unknown key 'jump', expected one of menu"},
        {"1,5 menu", "keys.txt:1: '1,5' is no time in seconds"},
        {"nan menu", "keys.txt:1: 'nan' is no time"},
        {"1 menu\n0.9 up", "keys.txt:2: the time 0.9 lies before"},
        {"1 menu up", "keys.txt:1: expected a key, or a time and a key"}};
    for (const auto& [text, words] : keys_files) {
        folder.write("keys.txt", text);
        EXPECT_THAT(run_camera(folder, "--keys-file keys.txt"), AllOf(HasSubstr(words), EndsWith("\n2\n"))) << text;
    }
    const std::pair<const char*, std::string> cases[] = {
        {"--colour", "--colour"},
        {"--keys 'menu jump' --snapshot a.png", "unknown key 'jump', expected one of menu, home, up"},
        {"--keys-file a.txt", "a.txt: can't be read"},
        {"--export a.json --keys menu", "--(keys excludes --export|export excludes --keys)"},
        {"--scenario case --still", "excludes --"},
        {"--listen 127.0.0.1:0 --window", "excludes --"},
        {"--format argb565 --keys menu", "argb565 not in .argb1555,argb4444,argb8888"},
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
    folder.write("keys.txt", "# x\r\n\n0.05 menu #1\nhome\n\t0.1  down-left\r\n");
    EXPECT_EQ(run_camera(folder, "--keys-file keys.txt --reset"), "0\n");
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

TEST(Program, KeepsEachValueThatItReportedBeforeItIsKilled)
{
    const TempFolder folder;
    std::string keys = "menu\nhome\n";
    for (int i = 0; i < 500; ++i) {
        keys += "right\n";
    }
    folder.write("keys.txt", keys);
    for (const int value : {51, 62, 80}) {
        const CameraProcess camera(folder.path(), CAMERA_SIM, "--keys-file keys.txt --data data 2>&1 >/dev/null");
        int last = -1;
        for (std::string line = camera.next_line(); !line.empty(); line = camera.next_line()) { // it may set some more
            (void)std::sscanf(line.c_str(), "%*s %*s %*s 'Brightness' of 'ImageParam' is now %d", &last);
            if (last == value) {
                camera.send(SIGKILL);
            }
        }
        EXPECT_TRUE(WIFSIGNALED(camera.end())) << "the camera ended before";
        sim::SettingsStore store(folder.path("data/settings.db")); // throws when it isn't healthy
        const int stored = std::stoi(store.load_all().at({"ImageParam", "Brightness"}));
        const int next = last == 100 ? 0 : last + 1; // may have been stored, and its line not written
        EXPECT_TRUE(stored == last || stored == next) << stored << " is stored, " << last << " was reported";
    }
}

struct Scenario : TestWithParam<std::filesystem::directory_entry> {};

TEST_P(Scenario, GoesAsWritten)
{
    EXPECT_EQ(run_camera(TempFolder(), "--scenario '" + GetParam().path().string() + "'"), "0\n");
}

static const std::filesystem::directory_iterator folders(OSD_SCENARIO_DIR);
INSTANTIATE_TEST_SUITE_P(Folder, Scenario, ValuesIn(begin(folders), end(folders)), [](const auto& test) {
    std::string name = test.param.path().filename();
    std::replace(name.begin(), name.end(), '-', '_'); // as a test may be called
    return name;
});
