// Fonts and pictures that the menu opens: other ones, or none although their files are there.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>

#include "simulator/camera/faults.h"

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

/// While one lives, whoever loads a staged picture gets the one that was put in its place, if any. One at a time; the
/// thread that loads pictures makes all calls.
class ReplacedPictures {
public:
    ReplacedPictures();
    ~ReplacedPictures();
    ReplacedPictures(const ReplacedPictures&) = delete;
    ReplacedPictures& operator=(const ReplacedPictures&) = delete;

    /// name: of the staged file. content: of a picture file.
    void replace(const std::string& name, std::string content) { contents_[name] = std::move(content); }
    void restore(const std::string& name) { contents_.erase(name); }
    /// Null for a path that isn't replaced.
    const std::string* find(const std::filesystem::path& file) const;

private:
    std::map<std::string, std::string> contents_;
};

} // namespace sim
