// Settings by name, as JSON, and what is told of them.
#include <gmock/gmock.h>
#include <utility>

#include "simulator/core/camera.h"
#include "simulator/core/data.h"
#include "simulator/core/settings_json.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;

static std::string settings_with_gain(const std::string& range)
{
    return definitions_with(R"({"key": "Gain", "parent": "A", "kind": "integer", "min": 0, "step": 1, )" + range + R"(},
        {"key": "Gain", "parent": "B", "kind": "color", "default": "1E90FF"},
        {"key": "Mode", "parent": "B", "kind": "option", "options": ["Off", "On"], "default": "Off"})");
}

struct SettingsTest : testing::Test {
    SettingsTest()
    {
        settings.listen(
            [this](const SettingId& id, const std::string& value) { told += name_of(id) + "=" + value + " "; });
        camera.events().listen([this](const Event& event) { told += "(" + to_line(event) + ") "; });
    }
    CameraConfig config() const
    {
        folder.write("settings.json", settings_with_gain(R"("max": 10, "default": 5)"));
        folder.write("lang/English.json", "{}");
        folder.write("lang/Deutsch.json", "{}");
        return {folder.path(), folder.path("data"), false, false, true, "English", {}};
    }
    std::string take_told() { return std::exchange(told, ""); }

    TempFolder folder;
    Camera camera{config()};
    Settings& settings = camera.settings();
    std::string told;
};

TEST_F(SettingsTest, TellOnlyWhatChanged)
{
    camera.change({"A", "Gain"}, "7");
    camera.change({"A", "Gain"}, "7");
    EXPECT_EQ(take_told(), "A.Gain=7 ");
    settings.set_all({{language_setting, "German"}, {{"A", "Gain"}, "7"}, {{"B", "Mode"}, "On"}});
    EXPECT_EQ(take_told(), "(language Deutsch) Language=German B.Mode=On ");
    settings.restore_defaults([](const SettingId&) { return true; });
    EXPECT_EQ(take_told(), "A.Gain=5 B.Mode=Off ");
}

TEST_F(SettingsTest, GoFromCameraToCameraAsAWholeOrNotAtAll)
{
    camera.change({"A", "Gain"}, "7");
    export_settings_file(settings, folder.path("all.json"));
    const std::string all = folder.read("all.json");
    EXPECT_EQ(nlohmann::json::parse(all),
              nlohmann::json::parse(R"({"A.Gain": "7", "B.Gain": "1E90FF", "B.Mode": "Off", "Language": "English"})"));
    const std::pair<const char*, const char*> bad[] = {
        {R"({"B.Mode": "On", "A.Gain": 11})", "bad.json: setting 'A.Gain': '11' is no whole number from 0 to 10"},
        {R"({"A.Gain": 8, "B.Mode": true})", "setting 'B.Mode': a value must be a text or a whole number"},
        {R"({"A.Gain": 8, "Mode": "On", "B.Mode": "On"})", "setting 'Mode' stands there twice, as 'B.Mode'"},
        {R"({"A.Gain": 8, "Gain": 1})", "expected one of A.Gain, B.Gain"},
        {R"({"A.Gain": 8, "C.Mode": "On"})", "bad.json: no setting 'C.Mode'"},
        {"[]", "expected one object, { ... }"}};
    take_told();
    for (const auto& [text, words] : bad) {
        const auto path = folder.write("bad.json", text);
        EXPECT_THAT([&] { import_settings_file(settings, path); }, ThrowsMessage<BadInput>(HasSubstr(words)));
    }
    EXPECT_THAT([&] { export_settings_file(settings, folder.path("no/such/file")); },
                ThrowsMessage<BadInput>(HasSubstr("can't be written")));
    EXPECT_EQ(take_told(), "");
    EXPECT_EQ(import_settings_file(settings, folder.write("some.json", R"({"A.Gain": 3, "Mode": "On"})")), 2U);
    EXPECT_EQ(take_told(), "A.Gain=3 B.Mode=On ");
    EXPECT_EQ(import_settings_file(settings, folder.path("all.json")), 4U);
    EXPECT_EQ(SettingsStore(folder.path("data/settings.db")).load_all().at({"A", "Gain"}), "7");
    const nlohmann::json gain = setting_object(settings, settings.by_name("A.Gain"));
    EXPECT_EQ(gain, nlohmann::json::parse(R"({"name": "A.Gain", "parent": "A", "key": "Gain", "kind": "integer",
        "value": "7", "default": "5", "min": 0, "max": 10, "step": 1, "unit": ""})"));
}

TEST_F(SettingsTest, FollowNewDefinitions)
{
    camera.change({"A", "Gain"}, "7");
    take_told();
    const std::pair<const char*, const char*> steps[] = {
        {R"("max": 6, "default": 2)", "A.Gain=2 (definitions) "},  // 7 fits no more
        {R"("max": 9, "default": 1)", "A.Gain=7 (definitions) "}}; // and fits again
    for (const auto& [range, expected] : steps) {
        camera.replace_definitions(load_definitions(folder.write("new.json", settings_with_gain(range))));
        EXPECT_EQ(take_told(), expected);
    }
    EXPECT_EQ(camera.language(), "English"); // the choice for this run
}
