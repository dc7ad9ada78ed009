// What the menu makes of each fault, and that nothing of it stays.
#include <SDL_image.h>
#include <gmock/gmock.h>

#include "simulator/base/log.h"
#include "simulator/camera/camera.h"
#include "simulator/host/key_script.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using namespace testing;

TEST(Faults, AreLoggedAndLeaveNothingBehind)
{
    const TempFolder folder;
    Camera camera({OSD_RESOURCE_DIR, folder.path("data"), false, {false, true, false}, "English", {}});
    const MenuConfig menu{2, 0, false, "", "Prompt"};
    auto host = std::make_unique<MenuHost>(camera, menu);
    const auto press_keys = [&](const char* keys) { KeyPlayer(parse_keys(keys), *host).press_all_now(); };
    const auto fresh_menu = [&] {
        camera.settings.restore_defaults([](const SettingId&) { return true; });
        press_keys("close menu home");
        return camera.video.look_at(2).pixels;
    };
    const auto before = fresh_menu();
    const std::pair<const char*, const char*> cases[] = {
        // with what is logged
        {"settings-refusing", "setting 'Mirror' of 'ImageParam' is refused (fault settings-refusing)"},
        {"settings-out-of-range", "no text for 'xxxxxxxxxxx' in English"},
        {"language-refusing", "the language is refused (fault language-refusing)"},
        {"memory-exhausted", "bytes (fault memory-exhausted)\nthe prompt can't be shown"},
        {"fonts-missing", "the prompt can't be shown"},
        {"pictures-missing", "is now 51"}};
    for (const auto& [fault, words] : cases) {
        std::string log;
        const LogListener listener([&log](const LogEntry& entry) { log += entry.text + "\n"; });
        camera.faults.set(parse_faults({fault}));
        press_keys("right down return right home right zoom+ prompt rec close menu home right");
        SDL_Surface* loaded = IMG_Load(OSD_RESOURCE_DIR "/pic/bar.bmp");
        EXPECT_EQ(loaded == nullptr, std::string(fault) == "pictures-missing");
        SDL_FreeSurface(loaded);
        EXPECT_THAT(log, HasSubstr(words));
        camera.faults.set({});
        host->overlays().hide_all();
        EXPECT_EQ(fresh_menu(), before) << fault;
    }
    host.reset();
    for (const char* fault : {"memory-exhausted", "fonts-missing"}) {
        camera.faults.set(parse_faults({fault}));
        EXPECT_THROW(MenuHost(camera, menu), std::runtime_error) << fault;
        camera.faults.set({});
        MenuHost{camera, menu}; // the next try starts it
    }
}
