// How a menu can look: its skins and the sizes of the picture, in numbers and in words.
#pragma once

#include <array>
#include <cstdint>

namespace pages {

constexpr std::uint32_t style_count = 3;
constexpr const char* style_words = "0, 1 or 2";

/// The smaller size, and the larger one of 3840 by 2160 pixels.
constexpr std::array<const char*, 2> size_names = {"1080p", "4k"};
constexpr const char* size_name(bool uhd) { return size_names[uhd ? 1 : 0]; }

} // namespace pages
