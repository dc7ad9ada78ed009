#include "simulator/core/resources.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "pages/check/check.h"
#include "simulator/core/data.h"

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

void require_usable(const std::filesystem::path& resources)
{
    const pages::ResourceFolder folder = pages::read_resource_folder(resources);
    const auto is_of_settings = [](const BadInput& mistake) { return mistake.place().file == "settings.json"; };
    const auto has_texts = [&folder](const auto& language) { return folder.languages.count(language.second) > 0; };
    const auto& languages = folder.definitions.languages;
    if (std::none_of(folder.mistakes.begin(), folder.mistakes.end(), is_of_settings) &&
        std::all_of(languages.begin(), languages.end(), has_texts)) {
        return;
    }
    std::string words = "resources " + resources.string() + " can't be used:";
    for (const pages::Finding& finding : pages::check(folder, {false, {}}).findings) {
        words += "\n" + pages::line_of(finding, resources.string());
    }
    throw BadInput(words);
}

std::filesystem::path plain_path(const std::filesystem::path& folder)
{
    const std::filesystem::path path = std::filesystem::absolute(folder).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

} // namespace sim
