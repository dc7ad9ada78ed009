// Where the camera's resources lie unless somebody names others.
#pragma once

#include <filesystem>
#include <vector>

namespace sim {

/// The resources of the checkout from which the camera was built, or, where that has gone, what its build has staged.
std::filesystem::path default_resources();

/// The folder from which the menu loads its pictures.
std::filesystem::path staged_pictures();

/// The folder from which the menu loads its fonts.
std::filesystem::path staged_fonts();

/// The folders with files of the resources, beginning with their own.
std::vector<std::filesystem::path> resource_folders(const std::filesystem::path& resources);

/// The folder with its path from the root, with no "." and ".." in it and no slash at its end: two paths of one folder
/// are equal then, links aside.
std::filesystem::path plain_path(const std::filesystem::path& folder);

} // namespace sim
