// The pictures of the camera's resources, as the menu loads them.
#pragma once

#include <filesystem>
#include <vector>

#include "simulator/host/graphics_calls.h"

namespace sim {

/// Puts the pictures of one camera in the place of the staged ones. They lie in its memory, so that cameras with
/// different resources, and the build tree, don't get each other's. One at a time.
class Pictures {
public:
    /// Takes nothing yet.
    explicit Pictures(const std::filesystem::path& resources);

    /// The folder of the resources in which the pictures lie.
    const std::filesystem::path& folder() const { return folder_; }
    /// Whether this is, by its place and ending, the file of a picture.
    bool has_name_of_one(const std::filesystem::path& file) const;
    /// The files that differ from what is staged.
    std::vector<std::filesystem::path> outdated() const;

    /// The menu loads this picture from now on; for a file that has gone, the staged one. Throws std::runtime_error for
    /// one that can't be drawn, and the menu goes on with the last good one. Takes five seconds at most.
    void take(const std::filesystem::path& file);

private:
    std::filesystem::path folder_;
    ReplacedPictures replaced_;
};

} // namespace sim
