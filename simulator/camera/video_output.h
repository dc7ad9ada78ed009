// What the camera's channels show: the picture as the settings want it, and the canvases of the menu over it.
#pragma once

#include <mutex>
#include <optional>
#include <set>

#include "simulator/base/uptime.h"
#include "simulator/settings/settings.h"
#include "simulator/video/channels.h"
#include "simulator/video/picture.h"

namespace sim {

class VideoOutput {
public:
    struct Config {
        bool uhd = false;    ///< a main channel of 3840 by 2160 pixels instead of 1920 by 1080
        bool still = false;  ///< the scene stands at time 0
        bool clouds = false; ///< clouds cross all of the sky, also behind the menu
    };
    VideoOutput(const Settings& settings, const Uptime& uptime, const Config& config);

    /// Shows or hides a canvas of the menu that lies in so many bytes, on one channel or, without a channel, on all. False,
    /// with a line in the log, for a canvas that can't be shown.
    bool push(bool show, const tagOSD_MENU_CANVAS_S& canvas, std::size_t bytes, std::optional<int> channel);

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

    /// Asked for inside a call of the menu, which still needs its page then, and made behind that call.
    void ask_for_restart() { restart_asked_ = true; }
    /// Starts the picture anew, with the mounting that is set by now, when a restart was asked for; false when not.
    bool restart_if_asked();

    /// Nothing is drawn while somebody holds this: for a change of the settings' definitions.
    std::unique_lock<std::mutex> stop_drawing() const { return std::unique_lock(look_mutex_); }

    Channels channels; ///< on any thread

private:
    struct Moment {
        Look look;
        double seconds = 0; ///< of the scene
    };
    Moment present_moment() const;

    const Settings& settings_;
    const Uptime& uptime_;
    const bool still_;
    const bool clouds_;
    mutable std::mutex look_mutex_; ///< guards what a look is made of: settings_, picture_start_, mounting_
    double picture_start_ = 0;      ///< by the uptime
    Mounting mounting_;
    bool restart_asked_ = false;
    MenuRefresh menu_refresh_ = nullptr;
    std::set<int> started_channels_;
};

} // namespace sim
