#include "simulator/core/resources.h"

#include <system_error>

#include "simulator/core/data.h"
#include "simulator/core/page_files.h"

namespace sim {

std::filesystem::path default_resources()
{
    const std::filesystem::path source = OSD_RESOURCE_SOURCE_DIR;
    std::error_code ignored; // a checkout that can't be looked at can't be used
    return std::filesystem::is_directory(source, ignored) ? source : std::filesystem::path(OSD_RESOURCE_DIR);
}

std::filesystem::path staged_pictures() { return std::filesystem::path(OSD_RESOURCE_DIR) / "pic"; }

std::filesystem::path staged_fonts() { return std::filesystem::path(OSD_RESOURCE_DIR) / "ttf"; }

std::filesystem::path resource_checker()
{
    return std::filesystem::path(OSD_RESOURCE_SOURCE_DIR) / "check_resources.py";
}

std::vector<std::filesystem::path> resource_folders(const std::filesystem::path& resources)
{
    const std::filesystem::path root = plain_path(resources);
    return {root, page_folder(root), root / "lang", root / "pic"};
}

void check_resource_folder(const std::filesystem::path& folder)
{
    std::error_code ignored; // what can't be looked at can't be used
    if (!std::filesystem::is_directory(page_folder(folder), ignored)) {
        throw BadInput("resources " + folder.string() +
                       ": expected a folder with pages/, lang/ and settings.json; pages/ is missing");
    }
}

std::filesystem::path plain_path(const std::filesystem::path& folder)
{
    const std::filesystem::path path = std::filesystem::absolute(folder).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

} // namespace sim
