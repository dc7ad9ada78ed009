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

} // namespace sim
