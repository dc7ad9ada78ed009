// Light and color of a picture.
#pragma once

#include "simulator/video/image.h"

namespace sim {

/// The default values leave a picture as it is.
struct Tones {
    double stops = 0;        ///< exposure: each doubles the light
    bool closed = false;     ///< no light at all
    double shadow_light = 0; ///< 0 to 1: dark parts become lighter, the lightest parts stay
    double red_gain = 1;     ///< of light, as the white balance sets it
    double blue_gain = 1;
    double brightness = 0; ///< -1 to 1
    double contrast = 0;   ///< -1 to 1
    double saturation = 0; ///< -1 to 1
    double hue = 0;        ///< degrees; above 0 from red to green
};

void apply_tones(Image& image, const Tones& tones);

} // namespace sim
