// The pictures that the menu loads.
#pragma once

#include <filesystem>

namespace sim {

/// Turns a picture file into the 32-bit BMP with alpha that the menu loads, whole at every moment: it is written under
/// another name and renamed. Throws std::runtime_error with file and reason.
void convert_to_bitmap(const std::filesystem::path& picture, const std::filesystem::path& bitmap);

} // namespace sim
