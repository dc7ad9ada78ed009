// A canvas as it was at the moment of its push.
#pragma once

#include <SDL.h>

#include "osd_canvas.h"
#include "simulator/video/image.h"

namespace sim {

/// A copy of a canvas's pixels and its place on the picture.
struct Layer {
    Image pixels; ///< components multiplied by alpha
    SDL_Rect place{};
    SDL_Rect base{};
};

/// Bytes a pixel of a canvas takes; 0 for a format that doesn't exist.
std::size_t bytes_per_pixel(std::uint32_t format);

/// Copies a canvas, reading its record as the media service would: address, size and format. The record must have
/// passed canvas_problem().
Layer copy_canvas(const tagOSD_MENU_CANVAS_S& canvas);

/// Why a canvas with a block of this many bytes can't be shown; null when it can.
const char* canvas_problem(const tagOSD_MENU_CANVAS_S& canvas, std::size_t block_bytes);

/// A layer as it lies on a channel; shrinking averages the pixels.
struct ScaledLayer {
    Image pixels;
    int left = 0;
    int top = 0;
    Size channel; ///< the size it was made for
};

ScaledLayer scale_layer(const Layer& layer, Size channel_size);

/// Lays a scaled layer over a picture; what falls outside is cut off.
void blend_layer(Image& picture, const ScaledLayer& layer);

} // namespace sim
