// The simulated camera: everything that stands behind the platform services.
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

#include "simulator/core/data.h"
#include "simulator/core/data_folder.h"
#include "simulator/core/events.h"
#include "simulator/core/faults.h"
#include "simulator/core/media_memory.h"
#include "simulator/core/settings.h"
#include "simulator/core/settings_store.h"
#include "simulator/video/channels.h"
#include "simulator/video/picture.h"

namespace tinyxml2 {
class XMLDocument;
}

namespace sim {

struct CameraConfig {
    std::filesystem::path resources; ///< holds settings.json and the folder lang
    std::filesystem::path data;
    bool reset = false;                  ///< settings back to their defaults
    bool uhd = false;                    ///< a main channel of 3840 by 2160 instead of 1920 by 1080
    bool still = false;                  ///< the scene stands at time 0
    std::optional<std::string> language; ///< language for this run, by its name or its option key
    std::filesystem::path pages;         ///< page files that go before those of the resources; empty for none
    bool clouds = false;                 ///< clouds cross all of the sky, also behind the menu
};

/// Owns the services and the channels. One camera at a time: the platform functions forward to it.
///
/// One thread, which runs the menu, makes all calls. Others may call draw(), channels() and faults(), and no more.
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
    Settings& settings() { return settings_; }
    MediaMemory& memory() { return memory_; }
    Channels& channels() { return channels_; }
    Events& events() { return events_; }
    Faults& faults() { return faults_; }

    /// Seconds since the camera was made.
    double seconds() const;

    /// The name of the menu's present language.
    const std::string& language() const;
    /// The text of a key; null, reported once a key, when there is none. Live values are asked for as well: what
    /// begins with no letter, such as an address, is no key and not reported.
    const std::string* translate(const std::string& language, const std::string& key);

    /// Stores the new value of a setting. Throws as Settings::set() does.
    void change(const SettingId& id, const std::string& text) { settings_.set(id, text); }

    /// The document of a page: from the folder of the configuration when that has a file of the same name, else the text
    /// that was kept for it, else from its file in the resources. Null, with file and line in the log, when it can't be
    /// had.
    std::unique_ptr<tinyxml2::XMLDocument> open_page(const std::filesystem::path& path);

    /// A restart is asked for inside a call of the menu, which still needs its page then, and made behind that call.
    void ask_for_restart() { restart_asked_ = true; }
    /// Starts the picture anew, with the mounting that is set by now, when a restart was asked for; false when not.
    bool restart_if_asked();

    /// Shows or hides a canvas on one channel, or on all when there is none. False, with a line in the log, for a
    /// canvas that can't be shown.
    bool push_canvas(bool show, const tagOSD_MENU_CANVAS_S& canvas, std::optional<int> channel);

    /// The menu's function that pushes its canvas to one channel again; null for none.
    using MenuRefresh = int (*)(OSD_BOOL, OSD_ATTACH_INFO_S*);
    void set_menu_refresh(MenuRefresh refresh) { menu_refresh_ = refresh; }

    /// Starts a channel, which asks the menu for its canvas then; does nothing when it has started.
    void attach(int channel);
    /// What a channel shows at this moment: the picture with its canvases. On any thread.
    Image draw(int channel);
    /// attach() and draw().
    Image look_at(int channel);

    /// Gives the main channel 3840 by 2160 pixels, or 1920 by 1080.
    void resize(bool uhd);

    const std::filesystem::path& resources() const { return resources_; }
    /// The same as translate() for somebody who isn't the menu: nothing is reported.
    const std::string* find_text(const std::string& language, const std::string& key) const;
    /// Puts other texts in the place of those of a language. False when they say the same.
    bool replace_texts(const std::string& language, pages::Texts texts);
    /// By the language's name.
    const std::map<std::string, pages::Texts>& texts() const { return texts_; }
    /// From now on the menu reads this text as the page, whatever its file holds. False when it did so before.
    bool keep_page(const std::string& name, const std::string& text);
    const std::map<std::string, std::string>& kept_pages() const { return kept_pages_; }

    /// Puts other definitions, whose languages have texts, in the place of the present ones; the settings follow them.
    void replace_definitions(Definitions definitions);

private:
    struct Moment {
        Look look;
        double seconds = 0; ///< of the scene
    };
    Moment present_moment() const;
    std::unique_ptr<tinyxml2::XMLDocument> read_page(const std::filesystem::path& path) const;

    mutable std::mutex look_mutex_; ///< guards what a look is made of: definitions_, picture_start_, mounting_
    Definitions definitions_;
    std::map<std::string, pages::Texts> texts_; ///< by the language's name
    std::string forced_language_;               ///< option key, empty when the setting decides
    DataFolder folder_;
    SettingsStore store_;
    Settings settings_;
    MediaMemory memory_;
    Channels channels_;
    Events events_;
    Faults faults_;
    std::filesystem::path resources_;
    std::filesystem::path pages_;
    std::map<std::string, std::string> kept_pages_; ///< by name
    bool still_;
    bool clouds_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    double picture_start_ = 0; ///< in seconds since start_
    Mounting mounting_;
    bool restart_asked_ = false;
    std::set<std::string> missing_texts_;
    MenuRefresh menu_refresh_ = nullptr;
    std::set<int> started_channels_;
};

} // namespace sim
