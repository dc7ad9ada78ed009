// Pictures as PNG files.
#pragma once

#include <filesystem>

#include "simulator/video/image.h"

namespace sim {

/// Throws BadInput when a picture can't be written to this path: no folder, a folder of that name, no right to write.
void check_snapshot_path(const std::filesystem::path& path);

/// Writes the image as a whole file. Throws BadInput, leaving an earlier file of that name as it was.
void save_png(const Image& image, const std::filesystem::path& path);

/// Reads a picture. Throws BadInput when the file can't be read as one.
Image load_png(const std::filesystem::path& path);

} // namespace sim
