// Pixels in memory, as all parts of the picture pass them on.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace sim {

/// A color as 0xAARRGGBB.
using Color = std::uint32_t;

struct Size {
    int width = 0;
    int height = 0;
};

constexpr bool operator==(Size a, Size b) { return a.width == b.width && a.height == b.height; }
constexpr bool operator!=(Size a, Size b) { return !(a == b); }

/// Rows from top to bottom without gaps between them.
struct Image {
    Image() = default;
    explicit Image(Size wanted)
        : size(wanted), pixels(static_cast<std::size_t>(wanted.width) * static_cast<std::size_t>(wanted.height))
    {
    }

    Color* row(int y) { return pixels.data() + offset(y); }
    const Color* row(int y) const { return pixels.data() + offset(y); }

    Size size;
    std::vector<Color> pixels;

private:
    std::size_t offset(int y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width); }
};

/// The component of a color that starts at this bit: 24 alpha, 16 red, 8 green, 0 blue.
constexpr std::uint32_t component(Color color, int shift) { return (color >> shift) & 0xFFU; }

constexpr Color make_color(std::uint32_t alpha, std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return alpha << 24 | red << 16 | green << 8 | blue;
}

/// What was computed for a component, within its range.
constexpr std::uint8_t clamped(int value) { return static_cast<std::uint8_t>(std::clamp(value, 0, 255)); }

/// value * factor / 255, rounded; both 0 to 255.
constexpr std::uint32_t scale_byte(std::uint32_t value, std::uint32_t factor)
{
    const std::uint32_t product = value * factor + 128;
    return (product + (product >> 8)) >> 8;
}

/// Lays a color whose components are already multiplied by its alpha over an opaque one. Two components at a time, each
/// in 16 bits and rounded as scale_byte() does, which compilers turn into instructions for several pixels.
constexpr Color lay_over(Color below, Color premultiplied)
{
    const std::uint32_t rest = 255 - component(premultiplied, 24);
    const std::uint32_t red_blue = (below & 0xFF00FFU) * rest + 0x800080U;
    const std::uint32_t green = (below >> 8 & 0xFFU) * rest + 0x80U;
    const std::uint32_t kept =
        ((red_blue + (red_blue >> 8 & 0xFF00FFU)) >> 8 & 0xFF00FFU) | ((green + (green >> 8)) & 0xFF00U);
    return (kept + (premultiplied & 0xFFFFFFU)) | 0xFF000000U;
}

constexpr Color premultiply(Color color)
{
    const std::uint32_t alpha = component(color, 24);
    return make_color(alpha, scale_byte(component(color, 16), alpha), scale_byte(component(color, 8), alpha),
                      scale_byte(component(color, 0), alpha));
}

/// The inverse of premultiply(), rounded to the nearest; what is wholly transparent has no color and gives 0.
constexpr Color unpremultiply(Color color)
{
    const std::uint32_t alpha = component(color, 24);
    if (alpha == 0) {
        return 0;
    }
    const auto part = [color, alpha](int shift) {
        const std::uint32_t straight = (component(color, shift) * 255 + alpha / 2) / alpha;
        return straight < 255 ? straight : 255;
    };
    return make_color(alpha, part(16), part(8), part(0));
}

} // namespace sim
