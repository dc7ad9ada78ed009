// How pictures lie on the output: turned as the camera is mounted, a small one in the large one.
#pragma once

#include "simulator/video/image.h"

namespace sim {

/// How the camera's mounting is made up for.
struct Mounting {
    int angle = 0;    ///< clockwise: 0, 90, 180 or 270
    bool crop = true; ///< an upright picture fills the width and is cut; else it is seen whole, between black bars
};

void turn_picture(Image& image, const Mounting& mounting);

/// A small picture in the large one.
struct Inset {
    bool panorama = true; ///< shows the whole scene; else what the large one shows
    bool right = true;
    bool bottom = true;
    double width = 0.2; ///< share of the large picture's
};

Size inset_size(Size picture, const Inset& inset);

/// Lays the small picture with a white edge near its corner of the large one.
void lay_inset(Image& picture, const Image& small, const Inset& inset);

} // namespace sim
