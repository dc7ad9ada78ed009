// Pixels in memory, as all parts of the picture pass them on.
#pragma once

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

} // namespace sim
