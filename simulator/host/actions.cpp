#include "simulator/host/actions.h"

#include <algorithm>
#include <iterator>

#include "osd_menu.h"
#include "simulator/base/log.h"
#include "simulator/camera/camera.h"

namespace sim {
namespace {

bool in_zone(const Camera& camera, const char* zone, const SettingId& id)
{
    const auto found = camera.definitions().zones.find(zone);
    return found != camera.definitions().zones.end() && found->second == id.parent;
}

void restore_zone(Camera& camera, const char* zone)
{
    camera.settings.restore_defaults([&](const SettingId& id) { return in_zone(camera, zone, id); });
}

// The menu reads the page again by itself behind these three.
void restore_image(Camera& camera) { restore_zone(camera, "Image"); }
void restore_exposure(Camera& camera) { restore_zone(camera, "Exposure"); }
void restore_white_balance(Camera& camera) { restore_zone(camera, "WhiteBalance"); }

/// Whoever stands before the camera must still be able to read the menu, and whoever doesn't, to reach the camera.
void restore_factory_settings(Camera& camera)
{
    camera.settings.restore_defaults([&](const SettingId& id) {
        return to_string(id) != to_string(language_setting) && !in_zone(camera, "Network", id);
    });
    OSD_MENU_RefreshPage(); // the page below the question; the menu draws it behind this call
}

/// The lens is measured over its whole way and comes to rest at the wide end.
void correct_lens(Camera& camera)
{
    char zoom_key[] = "Zoom";
    if (const Setting* zoom = camera.settings.find_key(zoom_key)) {
        camera.settings.set(zoom->id, text_of(*zoom, zoom->min));
        OSD_MENU_RefreshItem(zoom_key);
    }
}

void go_back(Camera& /*camera*/) { OSD_MENU_ReturnMenu(); }

void restart(Camera& camera) { camera.video.ask_for_restart(); }

struct Action {
    const char* key;
    const char* says;
    void (*run)(Camera& camera); ///< null where nothing of it can be seen
};
constexpr Action actions[] = {
    {"RestoreImg", "image settings are at their defaults", restore_image},
    {"RestoreExp", "exposure settings are at their defaults", restore_exposure},
    {"RestoreWB", "white balance settings are at their defaults", restore_white_balance},
    {"FactoryRestore", "all settings but language and network are at their defaults", restore_factory_settings},
    {"LensCorrection", "the lens is calibrated", correct_lens},
    {"Restart", "the camera restarts", restart},
    {"Back", "back to the page before", go_back},
    {"Confirm", "the settings of the page are confirmed", nullptr},
    {"HdmiCfg", "the video output uses its new settings", nullptr},
    {"Pip", "the small picture uses its new settings", nullptr},
    {"AfTrigger", "focuses once", nullptr},
    {"WbTrigger", "measures the light once", nullptr},
    {"PtzHome", "moves to the home position", nullptr},
    {"PtzCalibrate", "calibrates pan and tilt", nullptr},
};

} // namespace

bool run_action(Camera& camera, const std::string& key)
{
    const auto found =
        std::find_if(std::begin(actions), std::end(actions), [&key](const Action& row) { return key == row.key; });
    if (found == std::end(actions)) {
        return false;
    }
    log_line(LogLevel::Info, "business", found->says);
    if (found->run != nullptr) {
        found->run(camera);
    }
    return true;
}

} // namespace sim
