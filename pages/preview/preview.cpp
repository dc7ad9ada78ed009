#include "pages/preview/preview.h"

#include <algorithm>
#include <set>

#include "pages/preview/preview_page.h"
#include "pages/preview/writer.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> draw_all(const ResourceFolder& folder, const fs::path& to, const std::vector<View>& views,
                                  const std::vector<Shot>& shots, const Progress& progress)
{
    std::vector<std::string> files;
    PictureWriter writer;
    Menu menu(folder, views.front());
    for (const View& view : views) {
        menu.look(view);
        make_folder(to / folder_of(view));
        for (const Shot& shot : shots) {
            files.push_back(folder_of(view) + "/" + shot.file + ".png");
            writer.write(picture_of(menu, shot), to / files.back());
            progress(files.size(), views.size() * shots.size());
        }
    }
    writer.finish();
    return files;
}

/// Those of an earlier run that the selection takes.
std::vector<std::string> taken(std::vector<std::string> files, const std::vector<View>& views,
                               const Selection& selection)
{
    std::set<std::string> looks; // style and size
    for (const View& view : views) {
        looks.insert(fs::path(folder_of(view)).filename().string());
    }
    const auto left_out = [&](const std::string& file) {
        const fs::path path(file);
        const std::string name = path.filename().string();
        const std::string language = path.parent_path().parent_path().string();
        return looks.count(path.parent_path().filename().string()) == 0 ||
               !(selection.languages.empty() || selection.languages.count(language) > 0) ||
               !takes_page(selection, name.substr(0, name.find('.')));
    };
    files.erase(std::remove_if(files.begin(), files.end(), left_out), files.end());
    return files;
}

void refuse_same(const fs::path& to, const fs::path& earlier)
{
    std::error_code ignored; // one that isn't there yet is another
    if (fs::equivalent(to, earlier, ignored)) {
        throw BadInput("--against " + earlier.string() + " is the folder to write to, expected another one");
    }
}

/// That of a run before into the same folder, whose pictures are written over now.
void forget_comparison(const fs::path& to)
{
    if (has_list(to)) {
        fs::remove_all(to / before_folder);
        fs::remove_all(to / difference_folder);
    }
}

} // namespace

Preview write_preview(const ResourceFolder& folder, const fs::path& to, const Selection& selection,
                      const fs::path& earlier, const Progress& progress)
{
    refuse_inside(folder, to);
    const Selection usable = checked(selection, folder);
    const std::vector<View> views = views_of(usable, folder);
    const std::vector<Shot> shots = shots_of(folder, usable);
    std::vector<std::string> earlier_files;
    if (!earlier.empty()) {
        refuse_same(to, earlier);
        earlier_files = taken(read_list(earlier), views, usable);
    }
    make_folder(to);
    forget_comparison(to);
    const std::vector<std::string> files = draw_all(folder, to, views, shots, progress);
    write_list(to, files);
    Preview preview{files.size(), {}};
    if (!earlier.empty()) {
        preview.changes = compare(to, files, earlier, earlier_files);
    }
    write_text(to / "index.html", preview_page(shots, views, preview.changes, !earlier.empty()));
    return preview;
}

} // namespace pages
