// Text that stands over the picture beside the menu.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "osd_prompt.h"
#include "simulator/camera/camera.h"

namespace sim {

/// The zoom ratio, a prompt, and the mark of a recording. Ratio and prompt go by themselves when their time is over, at
/// the next call of hide_what_is_over().
class Overlays {
public:
    explicit Overlays(Camera& camera) : camera_(camera) {}
    Overlays(const Overlays&) = delete;
    Overlays& operator=(const Overlays&) = delete;

    /// Shows the ratio of the zoom, 1.0 for the wide end.
    void show_zoom(double ratio);
    void show_prompt(const std::string& text);
    void toggle_recording_mark();

    void hide_what_is_over();
    /// Until the next of them goes; none when nothing will.
    std::optional<double> seconds_left() const;
    void hide_all();

private:
    Camera& camera_;
    OSD_PROMPT_HANDLER_S recording_mark_ = {};
    double zoom_ends_ = 0; ///< in the camera's seconds
    double prompt_ends_ = 0;
};

/// While one lives, the menu's library finds the media service reloading. Throws BadInput when the marker file of the
/// service can't be made.
class ReloadingMarker {
public:
    ReloadingMarker();
    ~ReloadingMarker();
    ReloadingMarker(const ReloadingMarker&) = delete;
    ReloadingMarker& operator=(const ReloadingMarker&) = delete;

private:
    bool made_ = false; ///< a marker that was there before stays
};

} // namespace sim
