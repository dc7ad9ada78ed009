// The simulated camera: everything that stands behind the platform services.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "simulator/base/data.h"
#include "simulator/base/data_folder.h"
#include "simulator/base/uptime.h"
#include "simulator/camera/events.h"
#include "simulator/camera/faults.h"
#include "simulator/camera/media_memory.h"
#include "simulator/camera/page_source.h"
#include "simulator/camera/texts.h"
#include "simulator/camera/video_output.h"
#include "simulator/settings/settings.h"
#include "simulator/settings/settings_store.h"

namespace sim {

struct CameraConfig {
    std::filesystem::path resources; ///< holds settings.json and the folder lang
    std::filesystem::path data;
    bool reset = false; ///< settings back to their defaults
    VideoOutput::Config video;
    std::optional<std::string> language; ///< language for this run, by its name or its option key
    std::filesystem::path pages;         ///< page files that go before those of the resources; empty for none
};

/// Owns the parts of the camera. One camera at a time: the platform functions forward to it.
///
/// One thread, which runs the menu, makes all calls. Others may call video.draw(), video.channels and faults, and no
/// more.
class Camera {
public:
    /// Throws BadInput for broken files, an unusable data folder and an unknown language, all before it changes
    /// anything.
    explicit Camera(const CameraConfig& config);
    ~Camera();
    Camera(const Camera&) = delete;
    Camera& operator=(const Camera&) = delete;

    /// The camera that the platform functions talk to; null when there is none.
    static Camera* current();

    const Definitions& definitions() const { return definitions_; }
    /// The name of the menu's present language.
    const std::string& language() const;

    /// Puts other definitions, whose languages have texts, in the place of the present ones; the settings follow them.
    void replace_definitions(Definitions definitions);

private:
    Definitions definitions_;
    const std::string forced_language_; ///< option key; empty when the setting decides
    DataFolder folder_;                 ///< locked as long as the store is open
    SettingsStore store_;

public:
    const std::filesystem::path resources;
    const Uptime uptime;
    Events events;
    Faults faults;
    MediaMemory memory;
    Texts texts;
    PageSource pages;
    Settings settings;
    VideoOutput video;

private:
    Subscription language_changes_;
};

} // namespace sim
