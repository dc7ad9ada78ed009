// The camera's picture: the scene as the image settings show it.
#pragma once

#include <optional>

#include "simulator/core/settings.h"
#include "simulator/video/arrange.h"
#include "simulator/video/image.h"

namespace sim {

/// How the picture is to look. The default values leave the scene as it is.
struct Look {
    double brightness = 0; ///< -1 to 1
    double contrast = 0;
    double saturation = 0;
    bool mirror = false;
    bool flip = false;
    double zoom = 1;
    Mounting mounting;
    std::optional<Inset> inset;
    std::optional<Color> tally; ///< a frame around the picture
    double tally_level = 1;     ///< 0 to 1
    std::optional<Color> lamp;  ///< the camera's own light, in the lower right corner
};

/// What the present settings say. A setting that the definitions don't have leaves its value as it is.
Look look_of(const Settings& settings);

/// The picture after this many seconds.
Image draw_picture(Size size, const Look& look, double seconds);

} // namespace sim
