// What the services and the menu answer while a fault is on.
#include <SDL_image.h>
#include <algorithm>
#include <gmock/gmock.h>

#include "osd_menu.h"
#include "platform/config_call.h"
#include "platform/config_service.h"
#include "platform/media_service.h"
#include "simulator/core/camera.h"
#include "simulator/host/key_script.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;

struct FaultsTest : testing::Test {
    void turn_on(const std::string& name) { camera.faults().set(parse_faults({name})); }
    TempFolder folder;
    Camera camera{{OSD_RESOURCE_DIR, folder.path("data"), false, false, true, "English", {}}};
};

TEST_F(FaultsTest, ReachTheServices)
{
    EXPECT_THAT(
        [] {
            parse_faults({"fonts-missing", "rain"});
        },
        ThrowsMessage<BadInput>(HasSubstr("unknown fault 'rain', expected one of settings-slow, ")));
    char name[] = "menu";
    char parent[] = "ImageParam";
    char number_key[] = "Brightness";
    char text_key[] = "Mirror";
    char language[OSD_TEXT_LEN] = "English";
    char text[OSD_TEXT_LEN];
    const auto answers = [&] { // 1 for each service that succeeds
        tagCFG_VALUE_INT_S number{};
        tagOSD_MEM_S block{};
        const bool found = CFG_COM_GetIntParamByParent(parent, number_key, &number) == 0;
        const bool allocated = MPP_AllocMem(name, 4096, 0, &block) == 0;
        if (allocated) {
            MPP_FreeMem(&block);
        }
        return std::vector<int>{found, found && number.s32Cur <= number.s32Max,
                                osdCfgTranslate(language, "On", text), allocated};
    };
    const std::pair<const char*, std::vector<int>> cases[] = {
        {"settings-slow", {1, 1, 1, 1}},         {"settings-refusing", {0, 0, 1, 1}},
        {"settings-out-of-range", {1, 0, 1, 1}}, {"language-refusing", {1, 1, 0, 1}},
        {"memory-exhausted", {1, 1, 1, 0}},      {"pictures-missing", {1, 1, 1, 1}}};
    for (const auto& [fault, expected] : cases) {
        turn_on(fault);
        EXPECT_THAT(camera.faults().names(), ElementsAre(fault));
        EXPECT_EQ(answers(), expected) << fault;
    }
    turn_on("settings-out-of-range");
    tagCFG_VALUE_TXT_S value{};
    EXPECT_EQ(CFG_COM_GetTxtParamByParent(parent, text_key, &value), 0);
    EXPECT_EQ(std::count(std::begin(value.acList), std::end(value.acList), '\0'), 0);
}

TEST_F(FaultsTest, KeepTheMenuFromStarting)
{
    for (const char* fault : {"memory-exhausted", "fonts-missing"}) {
        turn_on(fault);
        EXPECT_THROW(MenuHost(camera, {2, 0, false, "", ""}), std::runtime_error) << fault;
        camera.faults().set({});
        MenuHost host(camera, {2, 0, false, "", ""}); // the next try starts it
        host.open();
        EXPECT_TRUE(host.is_open());
        host.call(OSD_MENU_CloseMenu);
    }
}

TEST_F(FaultsTest, LeaveNothingBehind)
{
    MenuHost host(camera, {2, 0, false, "", "Prompt"});
    const auto press_keys = [&](const char* keys) { KeyPlayer(parse_keys(keys), host).press_all_now(); };
    const auto fresh_menu = [&] {
        camera.settings().restore_defaults([](const SettingId&) { return true; });
        press_keys("close menu home");
        return camera.look_at(2).pixels;
    };
    const auto before = fresh_menu();
    const std::string picture = OSD_RESOURCE_DIR "/pic/bar.bmp";
    for (const FaultRow& row : all_faults()) {
        if (row.fault == Fault::SettingsSlow) {
            continue; // only slower
        }
        turn_on(row.name);
        press_keys("down right return right home right zoom+ prompt rec close menu home right");
        SDL_Surface* loaded = IMG_Load(picture.c_str());
        EXPECT_EQ(loaded == nullptr, row.fault == Fault::PicturesMissing);
        SDL_FreeSurface(loaded);
        camera.faults().set({});
        host.overlays().hide_all();
        EXPECT_EQ(fresh_menu(), before) << row.name;
    }
}
