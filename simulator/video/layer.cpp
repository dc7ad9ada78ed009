#include "simulator/video/layer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace sim {
namespace {

std::uint32_t expand5(std::uint32_t value) { return value << 3 | value >> 2; }

/// One bit of alpha can't say "half": the menu's background, drawn with alpha 128, arrives with the bit set and is
/// shown as an opaque dark grey, as the hardware shows this format. A pixel with color but without the bit counts as
/// shown too, because blending onto this format leaves the bit clear; only the value zero is transparent.
Color from_argb1555(std::uint32_t value)
{
    return value == 0 ? 0 : make_color(255, expand5(value >> 10 & 31), expand5(value >> 5 & 31), expand5(value & 31));
}

Color from_argb4444(std::uint32_t value)
{
    return make_color((value >> 12 & 15) * 17, (value >> 8 & 15) * 17, (value >> 4 & 15) * 17, (value & 15) * 17);
}

Color from_argb8888(std::uint32_t value) { return value; }

struct PixelFormat {
    std::size_t bytes;
    Color (*decode)(std::uint32_t value);
};
/// By the canvas's enPixFmt.
constexpr std::array<PixelFormat, 3> formats = {{{2, from_argb1555}, {2, from_argb4444}, {4, from_argb8888}}};

/// Where the pixels of one axis come from: pixel i of the target averages the source from edge(i) to edge(i + 1).
struct Axis {
    int source = 0;
    int target = 0;

    float edge(int index) const
    {
        return static_cast<float>(index) * static_cast<float>(source) / static_cast<float>(target);
    }
    int first(int index) const { return static_cast<int>(edge(index)); }
    int end(int index) const { return std::min(source, static_cast<int>(std::ceil(edge(index + 1)))); }
    /// How much of source pixel `at` belongs to target pixel `index`, 0 to 1.
    float weight(int index, int at) const
    {
        const float from = std::max(edge(index), static_cast<float>(at));
        const float to = std::min(edge(index + 1), static_cast<float>(at + 1));
        return std::max(0.0F, to - from);
    }
};

Color average(const Image& source, const Axis& across, const Axis& down, int x, int y)
{
    std::array<float, 4> sums{};
    float total = 0.0F;
    for (int row = down.first(y); row < down.end(y); ++row) {
        for (int column = across.first(x); column < across.end(x); ++column) {
            const Color color = source.row(row)[column];
            const float weight = down.weight(y, row) * across.weight(x, column);
            for (std::size_t i = 0; i < sums.size(); ++i) {
                sums[i] += weight * static_cast<float>(component(color, static_cast<int>(i) * 8));
            }
            total += weight;
        }
    }
    const auto mean = [&](std::size_t i) { return static_cast<std::uint32_t>(std::lround(sums[i] / total)); };
    return make_color(mean(3), mean(2), mean(1), mean(0));
}

Image scale_image(const Image& source, Size wanted)
{
    if (source.size.width == wanted.width && source.size.height == wanted.height) {
        return source;
    }
    Image target(wanted);
    const Axis across{source.size.width, wanted.width};
    const Axis down{source.size.height, wanted.height};
    for (int y = 0; y < wanted.height; ++y) {
        for (int x = 0; x < wanted.width; ++x) {
            target.row(y)[x] = average(source, across, down, x, y);
        }
    }
    return target;
}

int scaled(int value, int from, int to)
{
    return static_cast<int>(std::lround(static_cast<double>(value) * to / from));
}

} // namespace

std::size_t bytes_per_pixel(std::uint32_t format) { return format < formats.size() ? formats[format].bytes : 0; }

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
    layer.pixels = Image({layer.place.w, layer.place.h});
    const PixelFormat& format = formats[canvas.enPixFmt];
    const auto* bytes = static_cast<const unsigned char*>(canvas.stMem.pvVirAddr);
    for (Color& pixel : layer.pixels.pixels) {
        std::uint16_t half = 0;
        std::uint32_t whole = 0;
        if (format.bytes == sizeof half) {
            std::memcpy(&half, bytes, sizeof half);
            whole = half;
        } else {
            std::memcpy(&whole, bytes, sizeof whole);
        }
        pixel = premultiply(format.decode(whole));
        bytes += format.bytes;
    }
    return layer;
}

Image straight_pixels(const Layer& layer)
{
    Image image = layer.pixels;
    for (Color& pixel : image.pixels) {
        pixel = unpremultiply(pixel);
    }
    return image;
}

ScaledLayer scale_layer(const Layer& layer, Size channel_size)
{
    const SDL_Rect& place = layer.place;
    const int left = scaled(place.x, layer.base.w, channel_size.width);
    const int top = scaled(place.y, layer.base.h, channel_size.height);
    const int right = scaled(place.x + place.w, layer.base.w, channel_size.width);
    const int bottom = scaled(place.y + place.h, layer.base.h, channel_size.height);
    return {scale_image(layer.pixels, {std::max(1, right - left), std::max(1, bottom - top)}), left, top, channel_size};
}

void blend_layer(Image& picture, const ScaledLayer& layer)
{
    const int first_x = std::max(0, -layer.left);
    const int end_x = std::min(layer.pixels.size.width, picture.size.width - layer.left);
    const int first_y = std::max(0, -layer.top);
    const int end_y = std::min(layer.pixels.size.height, picture.size.height - layer.top);
    for (int y = first_y; y < end_y; ++y) {
        const Color* source = layer.pixels.row(y);
        Color* target = picture.row(layer.top + y) + layer.left;
        for (int x = first_x; x < end_x; ++x) {
            target[x] = lay_over(target[x], source[x]);
        }
    }
}

} // namespace sim
