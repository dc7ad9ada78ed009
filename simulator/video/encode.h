// Pictures as the bytes of picture files.
#pragma once

#include <string>

#include "simulator/video/image.h"

namespace sim {

/// The picture as a JPEG file; quality is 1 to 100. Alpha is left out. Throws std::runtime_error for a picture that
/// the format can't hold: one without pixels, or with a side above 65500.
std::string encode_jpeg(const Image& image, int quality);

/// The picture as a PNG file: with the alpha by which its components are multiplied, or opaque. Throws
/// std::runtime_error, as above; a side has at most 32767 pixels.
std::string encode_png(const Image& image, bool alpha);

} // namespace sim
