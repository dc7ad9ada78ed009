// What the simulated camera looks at: a street in the hills.
#pragma once

#include "simulator/video/painter.h"

namespace sim {

constexpr double scene_width = 1920;
constexpr double scene_height = 1080;

/// What the camera makes of the scene.
struct View {
    Size size;
    cairo_matrix_t lens{}; ///< brings the scene onto the picture
    Tones tones;

    auto all() const
    {
        const auto place = std::tie(lens.xx, lens.yx, lens.xy, lens.yy, lens.x0, lens.y0);
        return std::tuple_cat(std::tie(size.width, size.height), place, tones.all());
    }
};

/// The scene as it is after this many seconds. Clouds cross all of its sky, or keep out of the left half. What stands
/// still is drawn once and kept for the last few views. Safe to call from several threads.
Image draw_scene(const View& view, double seconds, bool clouds_everywhere);

} // namespace sim
