// Settings definitions, translations and the settings database: what can't be used is refused in words.
#include <gmock/gmock.h>
#include <sqlite3.h>

#include "simulator/settings/settings.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;

TEST(Definitions, AreRefusedInWords)
{
    const auto setting = [](const std::string& fields) { return definitions_with(R"({"key": "A", )" + fields + "}"); };
    std::string long_list = R"("x")"; // with 18 options of 15 bytes and 18 colons more than 271 bytes
    for (int i = 10; i < 28; ++i) {
        long_list += ", \"" + std::string(13, 'x') + std::to_string(i) + "\"";
    }
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"settings.json", "{\n\"languages\": {},\n oops}", "settings.json:3:2: this is no key"},
        {"settings.json", R"({"a": 1, "a": 2})", "'a' stands twice"},
        {"settings.json", R"({"a": 1e999})", "settings.json:1:7: '1e999' is too large"},
        {"settings.json", definitions_with("", R"({"Image": "Nowhere"})"), "no setting has the parent 'Nowhere'"},
        {"settings.json", definitions_with("", "{}", R"("Latin": "Latin", )"), "'languages': 'Latin' is no option of"},
        {"settings.json", setting(R"("kind": "text", "default": "", "min": 0)"),
         "settings.json:3:196: setting 'A': unknown field"},
        {"settings.json", setting(R"("kind": "text", "default": "1234567890123456")"), "has 16 bytes, expected 0 to"},
        {"settings.json", setting(R"("kind": "integer", "min": 5, "max": 5, "step": 1, "default": 5)"), "'min' below"},
        {"settings.json", setting(R"("kind": "integer", "min": 0, "max": 5, "step": 1, "default": 6)"), "from 0 to 5"},
        {"settings.json", setting(R"("kind": "integer", "min": 0, "max": 3000000000)"),
         "'max' is 3000000000, expected a whole number"},
        {"settings.json", setting(R"("kind": "option", "options": ["Red\u0000x"])"),
         "'Red\\x00x' can't be used, expected 1 to 15 bytes"},
        {"settings.json", setting(R"("kind": "option", "options": [)" + long_list + "]"), "at most 271 bytes"},
        {"settings.json", setting(R"("kind": "color", "default": "-12345")"), "six hexadecimal digits"},
        {"settings.json", setting(R"("kind": "color", "default": "000000", "step": 0)"),
         "'step' is 0, expected 1 or more"},
        {"Deutsch.json", "{\n\"Title\": \"Bildeinstellungen: Helligkeit 12\"}", "Deutsch.json:2:1: 'Title'"},
        {"Deutsch.json/x", "", "Deutsch.json: is a folder, expected a file"},
    };
    for (const auto& [file, text, words] : cases) {
        const TempFolder folder;
        folder.write("settings.json", definitions_with(""));
        folder.write("English.json", R"({"Title": "Bildeinstellungen: Helligkeit 1"})"); // 31 bytes
        folder.write(file, text);
        const auto load = [&] {
            for (const auto& [option, name] : load_definitions(folder.path("settings.json")).languages) {
                (void)pages::load_texts(folder.path(name + ".json"));
            }
        };
        EXPECT_THAT(load, ThrowsMessage<BadInput>(AllOf(HasSubstr(".json:"), HasSubstr(words)))) << text;
    }
}

TEST(Store, LeavesForeignFilesAlone)
{
    const std::pair<const char*, const char*> foreign[] = {
        {"CREATE TABLE notes (a); BEGIN EXCLUSIVE", "belongs to another program"},
        {"CREATE TABLE setting (a, b); PRAGMA application_id = 0x43414D53; PRAGMA user_version = 1; BEGIN EXCLUSIVE",
         "its table has an unknown form"}};
    for (const auto& [sql, words] : foreign) {
        const TempFolder folder;
        const auto opening = [&] { SettingsStore store(folder.path("settings.db")); };
        sqlite3* other = nullptr;
        ASSERT_EQ(sqlite3_open(folder.path("settings.db").c_str(), &other), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(other, sql, nullptr, nullptr, nullptr), SQLITE_OK);
        EXPECT_THAT(opening, ThrowsMessage<BadInput>(HasSubstr("another program holds it")));
        sqlite3_close(other);
        const std::string before = folder.read("settings.db");
        EXPECT_THAT(opening, ThrowsMessage<BadDatabase>(HasSubstr(words)));
        EXPECT_EQ(folder.read("settings.db"), before);
    }
}

TEST(Store, NeedsAWriteAheadLog)
{
    const TempFolder folder;
    sqlite3_vfs* usual = sqlite3_vfs_find(nullptr);
    sqlite3_vfs_register(sqlite3_vfs_find("unix-dotfile"), 1); // without shared memory, as some network folders are
    EXPECT_THAT([&] { SettingsStore store(folder.path("settings.db")); },
                ThrowsMessage<BadInput>(HasSubstr("no write-ahead log (journal mode 'delete')")));
    sqlite3_vfs_register(usual, 1);
}
