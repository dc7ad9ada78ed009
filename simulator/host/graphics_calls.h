// Fonts and pictures that the menu opens: other ones, or none although their files are there.
#pragma once

#include <filesystem>

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

/// While one lives, whoever loads a staged picture gets the one of the same name in this folder, where there is one. One
/// at a time.
class PictureRedirection {
public:
    explicit PictureRedirection(std::filesystem::path folder);
    ~PictureRedirection();
    PictureRedirection(const PictureRedirection&) = delete;
    PictureRedirection& operator=(const PictureRedirection&) = delete;

private:
    std::filesystem::path folder_;
};

} // namespace sim
