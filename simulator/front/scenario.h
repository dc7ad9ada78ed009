// Scenarios: keys, and what they must do.
#pragma once

#include <filesystem>
#include <stdexcept>

namespace sim {

/// The camera did something else than the scenario says. The text tells the first difference.
class ScenarioDiffers : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Plays a folder on a camera with fresh data and a still scene, and compares. The folder holds
///   keys.txt      a keys file; its times don't count, each key follows at once
///   calls.txt     what must happen, one event a line (simulator/camera/events.h), "#" begins a comment line
///   frame.png     what the main channel must show at the end, to the pixel
///   options.json  if needed: {"language": "German", "style": 1, "page": "image", "settings": {"Zoom": "150"}}
///   pages/        if needed: page files that go before the camera's own
/// With update it writes calls.txt and frame.png anew where they differ; comments in front of the first changed line
/// stay. Throws BadInput for a folder that can't be used, else ScenarioDiffers; an unexpected picture is written to
/// NAME.actual.png in the working folder then.
void play_scenario(const std::filesystem::path& folder, bool update);

} // namespace sim
