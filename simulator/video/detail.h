// Fine structure of a picture: its edges and its grain.
#pragma once

#include "simulator/video/image.h"

namespace sim {

/// Makes edges harder (up to 1) or softer (down to -1). What that means doesn't depend on the picture's size.
void sharpen(Image& image, double sharpness);

/// Adds the grain of a sensor, with this standard deviation in steps of a component. The same moment gives the same
/// grain.
void add_noise(Image& image, double deviation, double seconds);

} // namespace sim
