#include "simulator/camera/camera.h"

#include <iostream>
#include <utility>

#include "simulator/camera/services.h"

namespace sim {
namespace {

SettingsStore open_store(const std::filesystem::path& file, bool reset)
{
    if (!reset) {
        return SettingsStore(file);
    }
    try {
        SettingsStore store(file);
        store.clear();
        return store;
    } catch (const BadDatabase&) {
        const std::filesystem::path backup = move_database_aside(file);
        std::cout << "moved the unusable settings database to " << backup.string() << std::endl;
    }
    return SettingsStore(file);
}

} // namespace

Camera::Camera(const CameraConfig& config)
    : definitions_(load_definitions(config.resources / "settings.json")),
      forced_language_(config.language ? option_of_language(definitions_, *config.language) : ""), folder_(config.data),
      store_(open_store(folder_.database(), config.reset)), resources(config.resources),
      texts(config.resources / "lang", definitions_.languages), pages(config.resources, config.pages),
      settings(definitions_.settings, store_), video(settings, uptime, config.video)
{
    if (!forced_language_.empty()) {
        settings.set_for_this_run(language_setting, forced_language_);
    }
    language_changes_ = settings.listen([this](const SettingId& id, const std::string&) {
        if (name_of(id) == name_of(language_setting)) {
            events.tell({"language", language()});
        }
    });
    set_current_camera(this);
}

Camera::~Camera() { set_current_camera(nullptr); }

const std::string& Camera::language() const { return definitions_.languages.at(settings.value(language_setting)); }

void Camera::replace_definitions(Definitions definitions)
{
    Settings::Values changed;
    {
        const auto no_look = video.stop_drawing(); // of the new definitions and old values
        definitions_ = std::move(definitions);
        changed = settings.follow_definitions();
    }
    settings.tell(changed);
    events.tell({"definitions", ""});
}

} // namespace sim
