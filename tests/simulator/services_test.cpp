// The platform functions and the host's callbacks, called as the library calls them.
#include <cstring>
#include <gmock/gmock.h>
#include <tinyxml2.h>

#include "platform/config_call.h"
#include "platform/media_service.h"
#include "simulator/core/camera.h"
#include "simulator/core/services.h"
#include "simulator/host/callbacks.h"
#include "simulator/host/key_script.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;

static CameraConfig camera_in(const TempFolder& folder)
{
    folder.write("settings.json", definitions_with(R"({"key": "LedCustomColor", "kind": "color", "default": "1E90FF"},
        {"key": "Gain", "parent": "P", "kind": "integer", "min": -7, "max": 7, "step": 2, "default": 3})",
                                                   R"({"Image": "P"})"));
    folder.write("lang/English.json", R"({"On": "On"})");
    folder.write("lang/Deutsch.json", R"({"On": "Ein"})");
    return {folder.path(), folder.path("data"), false, false, true, std::nullopt, {}};
}

struct Services : testing::Test {
    TempFolder folder;
    Camera camera{camera_in(folder)};
};

TEST_F(Services, AnswerSettingsAndTexts)
{
    testing::internal::CaptureStderr();
    tagCFG_VALUE_INT_S number{};
    osdCfgGetInt("P", "Gain", &number);
    osdCfgGetInt(nullptr, "Gain", &number); // only with its parent
    EXPECT_THAT((std::vector{number.s32Min, number.s32Max, number.s32Step, number.s32Cur}), ElementsAre(-7, 7, 2, 3));
    tagCFG_VALUE_TXT_S text{};
    osdCfgGetTxt(nullptr, "Language", &text);
    EXPECT_STREQ(text.acList, "English:German");
    EXPECT_STREQ(text.acValue, "German");
    char language[OSD_TEXT_LEN];
    char out[OSD_TEXT_LEN];
    EXPECT_TRUE(osdCfgLanguage(language));
    for (const char* missing : {"Gain", "Gain", "192.168.1.120"}) {
        EXPECT_FALSE(osdCfgTranslate(language, missing, out));
    }
    EXPECT_TRUE(osdCfgTranslate(language, "On", out));
    EXPECT_STREQ(out, "Ein");
    EXPECT_EQ(CFG_GetDocByFileName(folder.write("bad.xml", "<Page>\n<Item>\n</Page>").c_str(), 1), nullptr);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                MatchesRegex("[^ ]+ WARN settings no setting 'Gain'\n"
                             "[^ ]+ INFO language no text for 'Gain' in Deutsch\n"
                             "[^ ]+ ERROR pages [^ ]+bad.xml:2: [^\n]*\n"));
}

TEST_F(Services, ShowCanvasesAsTheyWereWhenPushed)
{
    static std::vector<int> asked; // channels that asked the menu for its canvas
    const auto refresh = [](OSD_BOOL show, OSD_ATTACH_INFO_S* attach) {
        asked.push_back(show == 1 ? attach->channel : -1);
        return 0;
    };
    EXPECT_EQ(MPP_MENU_SetMenuCb(refresh), 0);
    const Color bare = camera.look_at(2).pixels[0];
    tagOSD_MENU_CANVAS_S canvas{{}, {}, {0, 0, 16, 16}, {0, 0, 1920, 1080}, 2, 0, 0, 0, 0, 0, {}};
    EXPECT_NE(MPP_MENU_UpdateCanvasToAllChns(1, &canvas), 0); // no pixels yet
    ASSERT_EQ(MPP_AllocMem("menu", 16 * 16 * 4, 0, &canvas.stMem), 0);
    std::memset(canvas.stMem.pvVirAddr, 0xFF, 1024);
    EXPECT_EQ(MPP_MENU_UpdateCanvasToAllChns(1, &canvas), 0);
    std::memset(canvas.stMem.pvVirAddr, 0x80, 1024);
    OSD_ATTACH_INFO_S preview{2};
    EXPECT_EQ(MPP_MENU_UpdateCanvasToOneChn(0, &preview, &canvas), 0);
    EXPECT_EQ(camera.look_at(0).pixels[0], 0xFFFFFFFFU);
    EXPECT_EQ(camera.look_at(2).pixels[0], bare);
    EXPECT_EQ(asked, std::vector({2, 0})); // each at its first look
    EXPECT_EQ(MPP_FreeMem(&canvas.stMem), 0);
    EXPECT_NE(MPP_FreeMem(&canvas.stMem), 0);
}

TEST_F(Services, DoWhatTheMenuApplies)
{
    const std::tuple<const char*, const char*, tagITEM_ATTR_E, tagITEM_VAL_TYPE_E, int, const char*> cases[] = {
        {"Gain", "Image", COMMON, NUMERICAL, -5, "-5 1E90FF German"},
        {"Gain", "Image", COMMON, NUMERICAL, 8, "-5 1E90FF German"}, // out of range
        {"Language", "", COMMON, OPTTXT, 0, "-5 1E90FF English"},
        {"LedCustomRed", "", COMMON, NUMERICAL, 0xAB, "-5 AB90FF English"},
        {"LedCustomGreen", "", COMMON, NUMERICAL, 0x101, "-5 AB01FF English"},
        {"NoSuchButton", "", CONFIRM_POP, NUMERICAL, 0, "-5 AB01FF English"},
        {"RestoreImg", "", CONFIRM_POP, NUMERICAL, 0, "3 AB01FF English"},
        {"FactoryRestore", "", CONFIRM_POP, NUMERICAL, 0, "3 1E90FF English"}};
    for (const auto& [key, zone, attribute, type, number, values] : cases) {
        tagITEM_NODE_S item{};
        std::strcpy(item.acItemIndex, key);
        std::strcpy(item.acDataZone, zone);
        std::strcpy(item.acValueKey[0], "English");
        item.enAttr = attribute;
        item.enValType = type;
        item.s32Cur = number;
        (void)apply_item(&item);
        tagOSD_MENU_CONTROL_PARAM_S color;
        answer_event(&camera, OSD_MENU_GET_LED_CUSTOM_COLOR, &color);
        const std::string gain = camera.settings().value({"P", "Gain"});
        EXPECT_EQ(gain + " " + color.acText + " " + camera.settings().value(language_setting), values) << key;
    }
    const auto stored = SettingsStore(folder.path("data/settings.db")).load_all();
    EXPECT_THAT(stored, ElementsAre(Pair(Field(&SettingId::key, "Language"), "English")));
}

TEST_F(Services, ReadKeysFiles)
{
    const auto at = [](double seconds) { return Field(&TimedKey::at, seconds); };
    EXPECT_THAT(read_keys_file(folder.write("good", "# x\r\n\n0.5 menu #1\nhome\n\t1.25  down-left\r\n")),
                ElementsAre(at(0.5), at(0.5), at(1.25)));
    const std::pair<const char*, const char*> bad[] = {
        {"menu\n\njump", ":3: unknown key 'jump', expected one of: menu"},
        {"1,5 menu", ":1: '1,5' is no time in seconds"},
        {"nan menu", ":1: 'nan' is no time"},
        {"1 menu\n0.9 up", ":2: the time 0.9 lies before"},
        {"1 menu up", ":1: expected a key, or a time and a key"}};
    for (const auto& [text, words] : bad) {
        const auto path = folder.write("bad", text);
        EXPECT_THAT([&] { read_keys_file(path); }, ThrowsMessage<BadInput>(StartsWith(path.string() + words)));
    }
}

TEST_F(Services, KeepAPageThatCantBeReadOpen)
{
    MenuHost host(camera, {2, 0, false, "nowhere", ""});
    EXPECT_THAT([&] { host.open(); }, ThrowsMessage<BadInput>(HasSubstr("'nowhere' is shown as far")));
    EXPECT_TRUE(host.is_open());
}
