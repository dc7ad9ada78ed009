#include "simulator/base/resources.h"

#include <system_error>

#include "simulator/base/data.h"

namespace sim {

std::filesystem::path default_resources()
{
    const std::filesystem::path source = OSD_RESOURCE_SOURCE_DIR;
    std::error_code ignored; // a checkout that can't be looked at can't be used
    return std::filesystem::is_directory(source, ignored) ? source : std::filesystem::path(OSD_RESOURCE_DIR);
}

std::filesystem::path staged_pictures() { return std::filesystem::path(OSD_RESOURCE_DIR) / "pic"; }

std::filesystem::path staged_fonts() { return std::filesystem::path(OSD_RESOURCE_DIR) / "ttf"; }

std::vector<std::filesystem::path> resource_folders(const std::filesystem::path& resources)
{
    const std::filesystem::path root = plain_path(resources);
    return {root, page_folder(root), root / "lang", root / "pic"};
}

std::filesystem::path plain_path(const std::filesystem::path& folder)
{
    const std::filesystem::path path = std::filesystem::absolute(folder).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

} // namespace sim
