// Fonts and pictures that are missing although their files are there.
#pragma once

#include "simulator/core/faults.h"

namespace sim {

/// While one lives, the faults "fonts-missing" and "pictures-missing" hold for whatever opens a font or loads a picture
/// file in this process. One at a time.
class GraphicsFaults {
public:
    explicit GraphicsFaults(const Faults& faults);
    ~GraphicsFaults();
    GraphicsFaults(const GraphicsFaults&) = delete;
    GraphicsFaults& operator=(const GraphicsFaults&) = delete;
};

} // namespace sim
