// Pictures as their authors draw them, and as the menu loads them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace pages {

/// Pixels are ARGB, 8 bits a part, not multiplied by alpha; rows follow each other without a gap.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// Draws an SVG in the size that it gives itself, or reads a BMP. Throws BadInput, with the place where it is known.
Picture read_picture(const std::filesystem::path& path);

/// The 32-bit BMP with alpha that the menu loads, as the content of a file. Throws std::runtime_error.
std::string bitmap_of(const Picture& picture);

} // namespace pages
