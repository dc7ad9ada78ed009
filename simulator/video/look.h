// What the camera's settings make of the picture.
#pragma once

#include <optional>

#include "simulator/settings/settings.h"
#include "simulator/video/image.h"
#include "simulator/video/tones.h"

namespace sim {

/// What the camera shows instead of the scene.
enum class Pattern { None, ColorBars, GrayRamp };

/// How the camera's mounting is made up for: the picture turns clockwise, by quarters.
struct Mounting {
    int cos = 1;
    int sin = 0;
    double scale = 1; ///< above 1 an upright picture fills the width and is cut; below 1 it lies between black bars
};

/// A small picture in the large one.
struct Inset {
    bool panorama = true; ///< shows the whole scene; else what the large one shows
    bool right = true;
    bool bottom = true;
    double width = 0.2; ///< share of the large picture's
};

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
    std::optional<Color> lamp;  ///< the camera's own light, in the lower right corner
    Pattern pattern = Pattern::None;
    bool clouds = false; ///< also in the left half, where the menu stands; no setting
};

/// What the present settings say. A setting that the definitions don't have leaves its value as it is.
Look look_of(const Settings& settings);

} // namespace sim
