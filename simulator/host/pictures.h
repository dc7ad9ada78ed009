// The pictures of the camera's resources, as the menu loads them.
#pragma once

#include <filesystem>

#include "simulator/host/graphics_calls.h"

namespace sim {

/// Puts the pictures of one camera in the place of the staged ones. They lie in its memory, so that cameras with
/// different resources, and the build tree, don't get each other's. One at a time.
class Pictures {
public:
    /// Takes nothing yet.
    explicit Pictures(const std::filesystem::path& resources);

    /// Takes all that differ from what is staged.
    void take_outdated();
    /// The menu loads this picture from now on; for a file that has gone, the staged one. One that can't be drawn is a
    /// line in the log, and the menu goes on with the last good one. False for that, and for what is no picture by its
    /// place and ending.
    bool take(const std::filesystem::path& file);

private:
    bool has_name_of_one(const std::filesystem::path& file) const;

    std::filesystem::path folder_;
    ReplacedPictures replaced_;
};

} // namespace sim
