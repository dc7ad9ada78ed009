#include "simulator/video/layer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "simulator/video/cairo_image.h"

namespace sim {
namespace {

/// By the canvas's enPixFmt.
constexpr std::array<SDL_PixelFormatEnum, 3> formats = {SDL_PIXELFORMAT_ARGB1555, SDL_PIXELFORMAT_ARGB4444,
                                                        SDL_PIXELFORMAT_ARGB8888};

constexpr SDL_PixelFormatEnum layer_format = SDL_PIXELFORMAT_ARGB8888;

/// One bit of alpha can't say "half": the menu's background, drawn with alpha 128, arrives with the bit set and is
/// shown as an opaque dark grey, as the hardware shows this format. A pixel with color but without the bit counts as
/// shown too, because blending onto this format leaves the bit clear; only the value zero is transparent.
Color shown_of_one_bit(Color color) { return color == 0 ? 0 : color | 0xFF000000U; }

int scaled(int value, int from, int to)
{
    return static_cast<int>(std::lround(static_cast<double>(value) * to / from));
}

} // namespace

std::size_t bytes_per_pixel(std::uint32_t format)
{
    return format < formats.size() ? SDL_BYTESPERPIXEL(formats[format]) : 0;
}

const char* canvas_problem(const tagOSD_MENU_CANVAS_S& canvas, std::size_t block_bytes)
{
    // Together with a rectangle that is no larger than its base these keep all products below in range, and a scaled
    // canvas no larger than the picture.
    constexpr int max_side = 16384;
    const SDL_Rect& place = canvas.stMenuRect;
    const SDL_Rect& base = canvas.stBaseRect;
    if (bytes_per_pixel(canvas.enPixFmt) == 0) {
        return "its pixel format is none of 0, 1, 2";
    }
    if (place.w < 1 || place.h < 1 || place.w > base.w || place.h > base.h) {
        return "its rectangle is empty or larger than its base picture";
    }
    const auto far_off = [](int value) { return value < -max_side || value > max_side; };
    if (base.w > max_side || base.h > max_side || far_off(place.x) || far_off(place.y)) {
        return "its place on the base picture is not usable";
    }
    const std::size_t needed =
        static_cast<std::size_t>(place.w) * static_cast<std::size_t>(place.h) * bytes_per_pixel(canvas.enPixFmt);
    return block_bytes < needed ? "its pixels don't lie in a media block that is large enough" : nullptr;
}

Layer copy_canvas(const tagOSD_MENU_CANVAS_S& canvas)
{
    Layer layer;
    layer.place = canvas.stMenuRect;
    layer.base = canvas.stBaseRect;
    const auto [width, height] = std::pair(layer.place.w, layer.place.h);
    layer.pixels = Image({width, height});
    std::vector<Color>& pixels = layer.pixels.pixels;
    const int pitch = width * static_cast<int>(bytes_per_pixel(canvas.enPixFmt));
    const SDL_PixelFormatEnum format = formats[canvas.enPixFmt];
    SDL_ConvertPixels(width, height, format, canvas.stMem.pvVirAddr, pitch, layer_format, pixels.data(), width * 4);
    if (format == SDL_PIXELFORMAT_ARGB1555) {
        std::transform(pixels.begin(), pixels.end(), pixels.begin(), shown_of_one_bit);
    }
    SDL_PremultiplyAlpha(width, height, layer_format, pixels.data(), width * 4, layer_format, pixels.data(), width * 4);
    return layer;
}

ScaledLayer scale_layer(const Layer& layer, Size channel_size)
{
    const SDL_Rect& place = layer.place;
    const int left = scaled(place.x, layer.base.w, channel_size.width);
    const int top = scaled(place.y, layer.base.h, channel_size.height);
    const int right = scaled(place.x + place.w, layer.base.w, channel_size.width);
    const int bottom = scaled(place.y + place.h, layer.base.h, channel_size.height);
    const Size size{std::max(1, right - left), std::max(1, bottom - top)};
    if (size == layer.pixels.size) {
        return {layer.pixels, left, top, channel_size};
    }
    Image pixels(size);
    lay_over(pixels, layer.pixels, {0, 0, size.width, size.height});
    return {std::move(pixels), left, top, channel_size};
}

void blend_layer(Image& picture, const ScaledLayer& layer)
{
    lay_over(picture, layer.pixels, {layer.left, layer.top, layer.pixels.size.width, layer.pixels.size.height});
}

} // namespace sim
