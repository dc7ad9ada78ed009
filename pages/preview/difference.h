// What has changed between two runs.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace pages {

enum class Change { Changed, Added, Gone };

/// By the file of the picture; those that are equal aren't there.
using Changes = std::map<std::string, Change>;

/// Folders beside the pictures, in which a changed one lies as it was, and with what is new in it.
constexpr const char* before_folder = "before";
constexpr const char* difference_folder = "difference";

/// The list that a run leaves of its pictures, one path below its folder a line.
void write_list(const std::filesystem::path& folder, const std::vector<std::string>& files);
bool has_list(const std::filesystem::path& folder);
/// Throws BadInput when the folder holds none.
std::vector<std::string> read_list(const std::filesystem::path& folder);

/// Compares the pixels of the pictures in a folder with an earlier run's, of which only the given ones count, and adds
/// for each changed or gone one what before_folder and difference_folder hold.
Changes compare(const std::filesystem::path& folder, const std::vector<std::string>& files,
                const std::filesystem::path& earlier, const std::vector<std::string>& earlier_files);

} // namespace pages
