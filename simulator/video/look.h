// What the camera's settings make of the picture.
#pragma once

#include <optional>

#include "simulator/settings/settings.h"
#include "simulator/video/arrange.h"
#include "simulator/video/tones.h"

namespace sim {

/// What the camera shows instead of the scene.
enum class Pattern { None, ColorBars, GrayRamp };

/// How the picture is to look. The default values leave the scene as it is.
struct Look {
    Tones tones;
    double noise = 0;     ///< standard deviation, in steps of a component
    double sharpness = 0; ///< -1 to 1
    bool mirror = false;
    bool flip = false;
    double zoom = 1;
    Mounting mounting;
    std::optional<Inset> inset;
    std::optional<Color> tally; ///< a frame around the picture
    double tally_level = 1;     ///< 0 to 1
    std::optional<Color> lamp;  ///< the camera's own light, in the lower right corner
    Pattern pattern = Pattern::None;
};

/// What the present settings say. A setting that the definitions don't have leaves its value as it is.
Look look_of(const Settings& settings);

} // namespace sim
