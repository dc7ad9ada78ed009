// Light and color.
#pragma once

#include <tuple>

#include "simulator/video/image.h"

namespace sim {

/// The default values leave all colors as they are.
struct Tones {
    double stops = 0;     ///< exposure: each doubles the light
    double red_stops = 0; ///< more of red, as the white balance sets it
    double blue_stops = 0;
    double shadow_light = 0; ///< 0 to 1: dark parts become lighter, the lightest parts stay
    double brightness = 0;   ///< -1 to 1
    double contrast = 0;     ///< -1 to 1
    double saturation = 0;   ///< -1 to 1
    double hue = 0;          ///< degrees; above 0 from red to green

    auto all() const
    {
        return std::tie(stops, red_stops, blue_stops, shadow_light, brightness, contrast, saturation, hue);
    }
};

/// How a color of the scene looks; alpha is left out.
Color toned(Color color, const Tones& tones);

} // namespace sim
