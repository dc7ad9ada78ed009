// The settings database: values that outlive the camera, and files that it must not touch.
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include "simulator/core/settings.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using testing::HasSubstr;

namespace {

const SettingId gain{"Image", "Gain"};
const std::map<SettingId, Setting> definitions = {{gain, {gain, SettingKind::Integer, {}, 0, 10, 1, "", "5"}}};

} // namespace

TEST(Store, ValuesOutliveAKilledCamera)
{
    const TempFolder folder;
    const pid_t child = fork();
    if (child == 0) { // ends with the database open, right after the value was taken
        SettingsStore store(folder.path("settings.db"));
        Settings(definitions, store).set(gain, "7");
        _exit(0);
    }
    waitpid(child, nullptr, 0);
    SettingsStore store(folder.path("settings.db"));
    EXPECT_EQ(Settings(definitions, store).number(gain), 7);
    store.clear();
    EXPECT_EQ(Settings(definitions, store).number(gain), 5);
}

TEST(Store, KeepsOnlyWhatFits)
{
    const TempFolder folder;
    SettingsStore store(folder.path("settings.db"));
    Settings settings(definitions, store);
    EXPECT_THAT(error_of<BadInput>([&] { settings.set(gain, "11"); }), HasSubstr("from 0 to 10"));
    EXPECT_THAT(error_of<BadInput>([&] { settings.set({"", "Gain"}, "1"); }), HasSubstr("no such setting"));
    settings.set_for_this_run(gain, "9");
    EXPECT_EQ(settings.number(gain), 9);
    EXPECT_TRUE(store.load_all().empty());
    store.write(gain, "99"); // as an older definition allowed it
    EXPECT_EQ(Settings(definitions, store).number(gain), 5);
}

TEST(Store, LeavesForeignFilesAlone)
{
    const TempFolder folder;
    const auto opening = [&] { SettingsStore store(folder.path("settings.db")); };
    folder.write("settings.db", std::string(2000, 'x'));
    EXPECT_THAT(error_of<BadInput>(opening), HasSubstr("file is not a database; 'camera-sim --reset' moves it aside"));
    EXPECT_EQ(folder.read("settings.db"), std::string(2000, 'x'));

    std::filesystem::remove(folder.path("settings.db"));
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(folder.path("settings.db").c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "CREATE TABLE notes (a); BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_THAT(error_of<BadInput>(opening), HasSubstr("another program holds it"));
    sqlite3_close(other);
    const std::string before = folder.read("settings.db");
    EXPECT_THAT(error_of<BadInput>(opening), HasSubstr("belongs to another program"));
    EXPECT_EQ(folder.read("settings.db"), before);
}
