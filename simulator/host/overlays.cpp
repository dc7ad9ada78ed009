#include "simulator/host/overlays.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "simulator/base/data.h"
#include "simulator/base/log.h"

namespace sim {
namespace {

constexpr double zoom_seconds = 2; // behind the last step of the zoom
constexpr double prompt_seconds = 3;

constexpr OSD_PROMPT_COLOR_S white = {255, 255, 255, 255};
constexpr OSD_PROMPT_COLOR_S red = {255, 230, 40, 30};
constexpr OSD_PROMPT_COLOR_S half_black = {128, 0, 0, 0};

constexpr OSD_PROMPT_CFG_S prompt_look = {40, 0, white, half_black, 0.5, 0.9};
constexpr OSD_PROMPT_CFG_S recording_look = {36, 0, red, half_black, 0.97, 0.1};

const char* const marker_file = "/tmp/.mpp_reloading"; // the library tests for it

void report(int result, const char* what)
{
    if (result != 0) {
        log_line(LogLevel::Warning, "overlay", std::string(what) + " can't be shown");
    }
}

} // namespace

void Overlays::show_zoom(double ratio)
{
    report(OSD_PROMPT_ShowZoomRatio(static_cast<float>(ratio)), "the zoom ratio");
    zoom_ends_ = camera_.uptime.seconds() + zoom_seconds;
}

void Overlays::show_prompt(const std::string& text)
{
    if (gsOsdPromptItem.pstSurface != nullptr) {
        OSD_PROMPT_Destroy(); // its canvas has the size of the text before
    }
    std::string copy = text;
    report(OSD_PROMPT_Create(prompt_look, copy.data()), "the prompt");
    prompt_ends_ = camera_.uptime.seconds() + prompt_seconds;
}

void Overlays::toggle_recording_mark()
{
    if (recording_mark_.pstSurface != nullptr) {
        OSD_PROMPT_DestroyEx(&recording_mark_);
        return;
    }
    char text[] = "REC";
    report(OSD_PROMPT_CreateEx(&recording_mark_, recording_look, text), "the mark of the recording");
}

void Overlays::hide_what_is_over()
{
    if (OSD_PROMPT_IsZoomRatioActive() != 0 && camera_.uptime.seconds() >= zoom_ends_) {
        OSD_PROMPT_HideZoomRatio();
    }
    if (gsOsdPromptItem.pstSurface != nullptr && camera_.uptime.seconds() >= prompt_ends_) {
        OSD_PROMPT_Destroy();
    }
}

std::optional<double> Overlays::seconds_left() const
{
    std::optional<double> end;
    if (OSD_PROMPT_IsZoomRatioActive() != 0) {
        end = zoom_ends_;
    }
    if (gsOsdPromptItem.pstSurface != nullptr) {
        end = std::min(end.value_or(prompt_ends_), prompt_ends_);
    }
    return end ? std::optional(std::max(0.0, *end - camera_.uptime.seconds())) : std::nullopt;
}

void Overlays::hide_all()
{
    zoom_ends_ = prompt_ends_ = 0;
    hide_what_is_over();
    if (recording_mark_.pstSurface != nullptr) {
        OSD_PROMPT_DestroyEx(&recording_mark_);
    }
}

ReloadingMarker::ReloadingMarker() : made_(!std::filesystem::exists(marker_file))
{
    if (!std::ofstream(marker_file, std::ios::app)) {
        throw BadInput(std::string("the marker ") + marker_file + " can't be made");
    }
}

ReloadingMarker::~ReloadingMarker()
{
    if (made_) {
        std::error_code ignored; // whoever removed it meanwhile wanted the same
        std::filesystem::remove(marker_file, ignored);
    }
}

} // namespace sim
