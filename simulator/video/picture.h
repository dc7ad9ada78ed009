// The camera's picture: the scene as the image settings show it.
#pragma once

#include "simulator/video/image.h"
#include "simulator/video/look.h"

namespace sim {

/// The picture after this many seconds.
Image draw_picture(Size size, const Look& look, double seconds);

} // namespace sim
