// What the simulated camera looks at: a street in the hills.
#pragma once

#include "simulator/video/image.h"

namespace sim {

/// The scene as it is after this many seconds. It is 1920 wide and 1080 high; zoom 1 shows all of it, larger values its
/// middle, drawn at the image's full detail. What stands still is drawn once and kept for the last few sizes and zooms.
/// Safe to call from several threads.
Image draw_scene(Size size, double seconds, double zoom);

/// Writes hours, minutes, seconds and hundredths into the upper right corner.
void draw_time_code(Image& image, double seconds);

} // namespace sim
