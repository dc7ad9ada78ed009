// A camera's settings by name and as JSON, and what it does for the menu, called as the library calls it.
#include <cstring>
#include <gmock/gmock.h>
#include <tinyxml2.h>

#include "platform/config_call.h"
#include "platform/media_service.h"
#include "simulator/camera/camera.h"
#include "simulator/camera/services.h"
#include "simulator/settings/settings_json.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;

static std::string settings_with_gain(const std::string& range)
{
    return definitions_with(R"({"key": "LedCustomColor", "kind": "color", "default": "1E90FF"},
        {"key": "Gain", "parent": "A", "kind": "integer", "min": -7, "step": 2, )" +
                                range + R"(},
        {"key": "Gain", "parent": "B", "kind": "color", "default": "1E90FF"},
        {"key": "Mode", "parent": "B", "kind": "option", "options": ["Off", "On"], "default": "Off"})",
                            R"({"Image": "A"})");
}

struct CameraTest : Test {
    CameraConfig config() const
    {
        folder.write("settings.json", settings_with_gain(R"("max": 10, "default": 5)"));
        folder.write("lang/English.json", R"({"On": "Yes"})");
        folder.write("lang/Deutsch.json", "{}");
        return {folder.path(), folder.path("data"), false, {false, true, false}, "English", {}};
    }
    std::map<SettingId, std::string> stored() const
    {
        return SettingsStore(folder.path("data/settings.db")).load_all();
    }

    TempFolder folder;
    Camera camera{config()};
    Settings& settings = camera.settings;
    std::string told;
    Subscription values = settings.listen(
        [this](const SettingId& id, const std::string& value) { told += name_of(id) + "=" + value + " "; });
    Subscription events = camera.events.listen([this](const Event& event) { told += "(" + to_line(event) + ") "; });
};

TEST_F(CameraTest, TellsOnlyWhatChanged)
{
    camera.settings.set({"A", "Gain"}, "7");
    camera.settings.set({"A", "Gain"}, "7");
    EXPECT_EQ(std::exchange(told, ""), "A.Gain=7 ");
    settings.set_all({{language_setting, "German"}, {{"A", "Gain"}, "7"}, {{"B", "Mode"}, "On"}});
    EXPECT_EQ(std::exchange(told, ""), "(language Deutsch) Language=German B.Mode=On ");
    settings.restore_defaults([](const SettingId&) { return true; });
    EXPECT_EQ(std::exchange(told, ""), "A.Gain=5 B.Mode=Off ");
}

TEST_F(CameraTest, TakesSettingsOverAsAWholeOrNotAtAll)
{
    camera.settings.set({"A", "Gain"}, "7");
    export_settings_file(settings, folder.path("all.json"));
    EXPECT_EQ(nlohmann::json::parse(folder.read("all.json")),
              nlohmann::json::parse(R"({"A.Gain": "7", "B.Gain": "1E90FF", "B.Mode": "Off", "Language": "English",
        "LedCustomColor": "1E90FF"})"));
    const std::pair<const char*, const char*> bad[] = {
        {R"({"B.Mode": "On", "A.Gain": 11})",
         "bad.json: setting 'A.Gain': '11' can't be used, expected a whole number from -7 to 10"},
        {R"({"A.Gain": 8, "B.Mode": true})", "setting 'B.Mode': a value must be a text or a whole number"},
        {R"({"A.Gain": 8, "Mode": "On", "B.Mode": "On"})", "setting 'Mode' stands there twice, as 'B.Mode'"},
        {R"({"A.Gain": 8, "Gain": 1})", "expected one of A.Gain, B.Gain"},
        {R"({"A.Gain": 8, "C.Mode": "On"})", "bad.json: no setting 'C.Mode'"},
        {"[]", "expected one object, { ... }"}};
    told.clear();
    for (const auto& [text, words] : bad) {
        const auto path = folder.write("bad.json", text);
        EXPECT_THAT([&] { import_settings_file(settings, path); }, ThrowsMessage<BadInput>(HasSubstr(words)));
    }
    EXPECT_THAT([&] { export_settings_file(settings, folder.path("no/such/file")); },
                ThrowsMessage<BadInput>(HasSubstr("can't be written")));
    EXPECT_EQ(std::exchange(told, ""), "");
    EXPECT_EQ(import_settings_file(settings, folder.write("some.json", R"({"A.Gain": 3, "Mode": "On"})")), 2U);
    EXPECT_EQ(std::exchange(told, ""), "A.Gain=3 B.Mode=On ");
    EXPECT_EQ(import_settings_file(settings, folder.path("all.json")), 5U);
    EXPECT_EQ(stored().at({"A", "Gain"}), "7");
}

TEST_F(CameraTest, FollowsNewDefinitions)
{
    camera.settings.set({"A", "Gain"}, "7");
    told.clear();
    const std::pair<const char*, const char*> steps[] = {
        {R"("max": 6, "default": 2)", "A.Gain=2 (definitions) "},  // 7 fits no more
        {R"("max": 9, "default": 1)", "A.Gain=7 (definitions) "}}; // and fits again
    for (const auto& [range, expected] : steps) {
        camera.replace_definitions(load_definitions(folder.write("new.json", settings_with_gain(range))));
        EXPECT_EQ(std::exchange(told, ""), expected);
    }
    EXPECT_EQ(camera.language(), "English"); // the choice for this run
}

TEST_F(CameraTest, AnswersSettingsAndTexts)
{
    internal::CaptureStderr();
    tagCFG_VALUE_INT_S number{};
    osdCfgGetInt("A", "Gain", &number);
    osdCfgGetInt(nullptr, "Gain", &number); // only with its parent
    EXPECT_THAT((std::vector{number.s32Min, number.s32Max, number.s32Step, number.s32Cur}), ElementsAre(-7, 10, 2, 5));
    tagCFG_VALUE_TXT_S text{};
    osdCfgGetTxt(nullptr, "Language", &text);
    EXPECT_STREQ(text.acList, "English:German");
    EXPECT_STREQ(text.acValue, "English");
    char out[OSD_TEXT_LEN];
    EXPECT_TRUE(osdCfgLanguage(out));
    for (const char* missing : {"Gain", "Gain", "192.168.1.120"}) {
        EXPECT_FALSE(osdCfgTranslate("English", missing, out));
    }
    EXPECT_TRUE(osdCfgTranslate("English", "On", out));
    EXPECT_STREQ(out, "Yes");
    EXPECT_EQ(CFG_GetDocByFileName(folder.write("bad.xml", "<Page>\n<Item>\n</Page>").c_str(), 1), nullptr);
    EXPECT_THAT(internal::GetCapturedStderr(), MatchesRegex("[^ ]+ WARN settings no setting 'Gain'\n"
                                                            "[^ ]+ INFO language no text for 'Gain' in English\n"
                                                            "[^ ]+ ERROR pages [^ ]+bad.xml:2: [^\n]*\n"));
}

TEST_F(CameraTest, ShowsCanvasesAsTheyWereWhenPushed)
{
    static std::vector<int> asked; // channels that asked the menu for its canvas
    const auto refresh = [](OSD_BOOL show, OSD_ATTACH_INFO_S* attach) {
        asked.push_back(show == 1 ? attach->channel : -1);
        return 0;
    };
    EXPECT_EQ(MPP_MENU_SetMenuCb(refresh), 0);
    const Color bare = camera.video.look_at(2).pixels[0];
    tagOSD_MENU_CANVAS_S canvas{{}, {}, {0, 0, 16, 16}, {0, 0, 1920, 1080}, 2, 0, 0, 0, 0, 0, {}};
    EXPECT_NE(MPP_MENU_UpdateCanvasToAllChns(1, &canvas), 0); // no pixels yet
    ASSERT_EQ(MPP_AllocMem("menu", 16 * 16 * 4, 0, &canvas.stMem), 0);
    std::memset(canvas.stMem.pvVirAddr, 0xFF, 1024);
    EXPECT_EQ(MPP_MENU_UpdateCanvasToAllChns(1, &canvas), 0);
    std::memset(canvas.stMem.pvVirAddr, 0x80, 1024);
    OSD_ATTACH_INFO_S preview{2};
    EXPECT_EQ(MPP_MENU_UpdateCanvasToOneChn(0, &preview, &canvas), 0);
    EXPECT_EQ(camera.video.look_at(0).pixels[0], 0xFFFFFFFFU);
    EXPECT_EQ(camera.video.look_at(2).pixels[0], bare);
    EXPECT_EQ(asked, std::vector({2, 0})); // each at its first look
    const std::uint64_t changes = camera.video.channels.changes();
    EXPECT_FALSE(camera.video.channels.wait_for_change(changes, {}));
    EXPECT_TRUE(camera.video.channels.wait_for_change(changes - 1, {}));
    EXPECT_EQ(MPP_FreeMem(&canvas.stMem), 0);
    EXPECT_NE(MPP_FreeMem(&canvas.stMem), 0);
}
