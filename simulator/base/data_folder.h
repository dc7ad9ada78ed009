// The folder that holds what the camera remembers.
#pragma once

#include <filesystem>

namespace sim {

/// Where the camera keeps its data unless told otherwise: below the user's XDG data home. Throws BadInput when the
/// environment names neither that nor a home.
std::filesystem::path default_data_folder();

/// Owns the folder for the life of the object: one camera a folder.
class DataFolder {
public:
    /// Makes the folder when it doesn't exist and locks it. Throws BadInput when it can't be made or written, or when
    /// another camera runs on it.
    explicit DataFolder(std::filesystem::path path);
    ~DataFolder();
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;

    std::filesystem::path database() const { return path_ / "settings.db"; }

private:
    std::filesystem::path path_;
    int lock_ = -1;
};

/// A folder of its own below the system's one for temporary files; it goes with the object, and all in it.
class TemporaryFolder {
public:
    /// Throws std::runtime_error when it can't be made.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace sim
