#include "pages/map/map.h"

#include <set>

#include "pages/map/map_page.h"
#include "pages/preview/shot.h"
#include "pages/preview/writer.h"

namespace pages {
namespace {

constexpr int picture_width = 320; // of a small picture; divides the menu's width in both sizes

std::vector<std::string> unreached_pages(const ResourceFolder& folder, const Walk& walk)
{
    std::set<std::string> reached;
    for (const Reach& reach : walk.pages) {
        reached.insert(reach.page);
    }
    std::vector<std::string> pages;
    for (const auto& [name, file] : folder.pages) {
        if (reached.count(name) == 0) {
            pages.push_back(name);
        }
    }
    return pages;
}

std::vector<SettingId> settings_without_row(const ResourceFolder& folder, const Walk& walk)
{
    std::set<SettingId> reached;
    for (const ReachedSetting& row : walk.settings) {
        reached.insert(row.setting);
    }
    std::vector<SettingId> settings;
    for (const auto& [id, setting] : folder.definitions.settings) {
        if (reached.count(id) == 0) {
            settings.push_back(id);
        }
    }
    return settings;
}

std::map<std::string, std::string> small_pictures(const ResourceFolder& folder, const View& view)
{
    std::map<std::string, std::string> pictures;
    Menu menu(folder, view);
    for (const Shot& shot : shots_of(folder, {})) {
        if (pictures.count(shot.page) == 0) { // the first is the page as it opens
            const Canvas picture = picture_of(menu, shot);
            pictures[shot.page] = picture.smaller(picture.width() / picture_width).png();
        }
    }
    return pictures;
}

} // namespace

MapCounts write_map(const ResourceFolder& folder, const std::filesystem::path& file, const Selection& selection)
{
    const View view = first_view(checked(selection, folder), folder);
    Atlas atlas{folder.root.string(), view, walk(folder, view), {}, {}, {}};
    atlas.unreached = unreached_pages(folder, atlas.walk);
    atlas.without_row = settings_without_row(folder, atlas.walk);
    atlas.pictures = small_pictures(folder, view);
    if (file.has_parent_path()) {
        make_folder(file.parent_path());
    }
    write_text(file, map_page(atlas));
    return {atlas.walk.pages.size(), atlas.unreached.size(), atlas.walk.too_deep.size(), atlas.walk.ends.size()};
}

} // namespace pages
