// The platform functions and the host's callbacks, called as the library calls them.
#include <cstring>
#include <gmock/gmock.h>
#include <tinyxml2.h>

#include "platform/config_service.h"
#include "platform/media_service.h"
#include "simulator/core/camera.h"
#include "simulator/core/services.h"
#include "simulator/host/callbacks.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using testing::HasSubstr;

namespace {

class Services : public testing::Test {
protected:
    Services()
    {
        folder.write("settings.json", definitions_with(R"({"key": "Gain", "parent": "P", "kind": "integer", "min": -7,
                                                           "max": 7, "step": 2, "default": 3},
                                                          {"key": "LedCustomColor", "kind": "color",
                                                           "default": "1E90FF"})",
                                                       R"({"Image": "P"})"));
        folder.write("lang/English.json", R"({"On": "On"})");
        folder.write("lang/Deutsch.json", R"({"On": "Ein"})");
        start("German");
    }

    void start(const std::string& wanted)
    {
        camera.reset(); // one camera at a time
        camera.emplace(CameraConfig{folder.path(), folder.path("data"), false, false, true, wanted});
    }

    TempFolder folder;
    std::optional<Camera> camera;
    char parent[8] = "P";
    char gain[8] = "Gain";
    char language[16] = "Language";
};

tagITEM_NODE_S item_of(const char* key, tagITEM_VAL_TYPE_E type, int number)
{
    tagITEM_NODE_S item{};
    std::strcpy(item.acItemIndex, key);
    std::strcpy(item.acDataZone, std::strcmp(key, "Gain") == 0 ? "Image" : "");
    item.enAttr = COMMON;
    item.enValType = type;
    item.s32Cur = number;
    return item;
}

} // namespace

TEST_F(Services, AnswerSettingsAndTexts)
{
    tagCFG_VALUE_INT_S number{};
    EXPECT_EQ(CFG_COM_GetIntParamByParent(parent, gain, &number), 0);
    EXPECT_EQ(std::vector<int>({number.s32Min, number.s32Max, number.s32Step, number.s32Cur}),
              std::vector<int>({-7, 7, 2, 3}));
    testing::internal::CaptureStderr();
    EXPECT_NE(CFG_COM_GetIntParams(gain, &number), 0); // only with its parent
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("[0-9:.]+ WARN settings no setting 'Gain'\n"));
    EXPECT_EQ(number.s32Cur, 3);

    tagCFG_VALUE_TXT_S text{};
    char english[] = "English";
    char french[] = "French";
    char name[OSD_TEXT_LEN] = {};
    char out[OSD_TEXT_LEN] = {};
    char on[] = "On";
    EXPECT_EQ(CFG_SYSTEM_GetLanguage(name), 0);
    EXPECT_EQ(CFG_LANG_GetString(name, on, out), 0);
    EXPECT_STREQ(out, "Ein");
    EXPECT_NE(CFG_LANG_GetString(name, gain, out), 0);
    EXPECT_NE(CFG_COM_SetTxtParams(language, french, 1), 0);
    EXPECT_EQ(CFG_COM_SetTxtParams(language, english, 1), 0);
    EXPECT_EQ(CFG_COM_GetTxtParams(language, &text), 0);
    EXPECT_STREQ(text.acList, "English:German");
    EXPECT_STREQ(text.acValue, "English");
    start("Deutsch"); // for one run, by its long name
    EXPECT_EQ(camera->language(), "Deutsch");
}

TEST_F(Services, TellWhereAPageFileIsBroken)
{
    const auto file = folder.write("bad.xml", "<Page>\n<Item>\n</Page>");
    testing::internal::CaptureStderr();
    EXPECT_EQ(CFG_GetDocByFileName(file.c_str(), 1), nullptr);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("bad.xml:2: "));
}

TEST_F(Services, ShowCanvasesAsTheyWereWhenPushed)
{
    tagOSD_MENU_CANVAS_S canvas{};
    canvas.stMenuRect = {0, 0, 16, 16};
    canvas.stBaseRect = {0, 0, 1920, 1080};
    canvas.enPixFmt = 2;
    EXPECT_NE(MPP_AllocMem("menu", 0, 0, &canvas.stMem), 0);
    EXPECT_NE(MPP_AllocMem("menu", 0xFFFFFFFF, 0, &canvas.stMem), 0);
    EXPECT_NE(MPP_MENU_UpdateCanvasToAllChns(1, &canvas), 0); // no pixels yet
    ASSERT_EQ(MPP_AllocMem("menu", 16 * 16 * 4, 0, &canvas.stMem), 0);
    EXPECT_EQ(camera->memory().in_use()["menu"].bytes, 1024U);
    const Color bare = camera->look_at(2).pixels[0];
    std::memset(canvas.stMem.pvVirAddr, 0xFF, 1024);
    EXPECT_EQ(MPP_MENU_UpdateCanvasToAllChns(1, &canvas), 0);
    std::memset(canvas.stMem.pvVirAddr, 0x80, 1024);
    OSD_ATTACH_INFO_S preview{2};
    EXPECT_EQ(MPP_MENU_UpdateCanvasToOneChn(0, &preview, &canvas), 0);
    EXPECT_EQ(camera->look_at(0).pixels[0], 0xFFFFFFFFU);
    EXPECT_EQ(camera->look_at(2).pixels[0], bare);
    EXPECT_EQ(MPP_FreeMem(&canvas.stMem), 0);
    EXPECT_NE(MPP_FreeMem(&canvas.stMem), 0);
}

TEST_F(Services, StoreWhatTheMenuApplies)
{
    tagITEM_NODE_S number = item_of("Gain", NUMERICAL, -5);
    EXPECT_EQ(apply_item(&number), 0);
    number.s32Cur = 8;
    EXPECT_NE(apply_item(&number), 0);
    EXPECT_EQ(camera->settings().number({"P", "Gain"}), -5);

    tagITEM_NODE_S option = item_of("Language", OPTTXT, 0);
    std::strcpy(option.acValueKey[1], "English");
    option.s32CurIdx = 1;
    EXPECT_EQ(apply_item(&option), 0);
    EXPECT_EQ(camera->language(), "English");

    tagITEM_NODE_S red = item_of("LedCustomRed", NUMERICAL, 0xAB);
    tagITEM_NODE_S green = item_of("LedCustomGreen", NUMERICAL, 0x01);
    EXPECT_EQ(apply_item(&red), 0);
    EXPECT_EQ(apply_item(&green), 0);
    tagOSD_MENU_CONTROL_PARAM_S answer;
    answer_event(&*camera, OSD_MENU_GET_LED_CUSTOM_COLOR, &answer);
    EXPECT_STREQ(answer.acText, "AB01FF");
    answer_event(&*camera, OSD_MENU_GET_FW_VERSION, &answer);
    EXPECT_STREQ(answer.acText, "3.1");
}
