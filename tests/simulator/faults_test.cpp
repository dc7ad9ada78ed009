// What the services and the menu answer while a fault is on.
#include <SDL_image.h>
#include <algorithm>
#include <gmock/gmock.h>

#include "osd_menu.h"
#include "platform/config_call.h"
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
    const auto answers = [] { // how each service answers
        std::string words;
        tagCFG_VALUE_INT_S number{};
        osdCfgGetInt("ImageParam", "Brightness", &number);
        words += number.s32Max == 0 ? "" : number.s32Cur <= number.s32Max ? "number " : "number out of range ";
        tagCFG_VALUE_TXT_S value{};
        osdCfgGetTxt("ImageParam", "Mirror", &value);
        const bool ends = std::count(std::begin(value.acList), std::end(value.acList), '\0') > 0;
        words += value.acList[0] == '\0' ? "" : ends ? "list " : "endless list ";
        char text[OSD_TEXT_LEN];
        words += osdCfgTranslate("English", "On", text) ? "text " : "";
        tagOSD_MEM_S block{};
        if (MPP_AllocMem("menu", 4096, 0, &block) == 0) {
            words += "memory ";
            MPP_FreeMem(&block);
        }
        return words;
    };
    const std::pair<const char*, const char*> cases[] = {
        {"settings-slow", "number list text memory "},
        {"settings-refusing", "text memory "},
        {"settings-out-of-range", "number out of range endless list text memory "},
        {"language-refusing", "number list memory "},
        {"memory-exhausted", "number list text "}};
    for (const auto& [fault, expected] : cases) {
        turn_on(fault);
        EXPECT_EQ(answers(), expected) << fault;
    }
}

TEST_F(FaultsTest, KeepTheMenuFromStarting)
{
    for (const char* fault : {"memory-exhausted", "fonts-missing"}) {
        turn_on(fault);
        EXPECT_THROW(MenuHost(camera, {2, 0, false, "", ""}), std::runtime_error) << fault;
        camera.faults().set({});
        MenuHost host(camera, {2, 0, false, "", ""}); // the next try starts it
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
