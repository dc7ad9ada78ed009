#include "pages/preview/sheet.h"

#include "pages/preview/shot.h"
#include "pages/preview/tile.h"
#include "pages/preview/writer.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

constexpr int columns_of_pages = 7;

std::string size_of(const View& view) { return "style" + std::to_string(view.style) + "-" + size_name(view.uhd); }

/// Draws tiles, and puts them together.
class SheetMaker {
public:
    SheetMaker(const ResourceFolder& folder, const Selection& selection, const View& first)
        : folder_(folder), selection_(selection), menu_(folder, first), tiles_(folder)
    {
    }

    /// All pages as one view shows them.
    Canvas pages_of(const View& view)
    {
        menu_.look(view);
        std::vector<Canvas> tiles;
        for (const Shot& shot : shots_of(folder_, selection_)) {
            tiles.push_back(tiles_.tile(picture_of(menu_, shot), label_of(shot)));
        }
        return TileMaker::sheet(tiles, columns_of_pages);
    }

    /// A page in some languages, each a column.
    Canvas languages_of(const std::string& page, View view, const std::vector<std::string>& languages)
    {
        Selection one = selection_;
        one.pages = {page};
        std::vector<Canvas> tiles;
        for (const Shot& shot : shots_of(folder_, one)) {
            for (const std::string& language : languages) {
                view.language = language;
                menu_.look(view);
                tiles.push_back(tiles_.tile(picture_of(menu_, shot), label_of(shot) + " in " + language));
            }
        }
        return TileMaker::sheet(tiles, static_cast<int>(languages.size()));
    }

private:
    const ResourceFolder& folder_;
    const Selection& selection_;
    Menu menu_;
    TileMaker tiles_;
};

std::vector<std::string> languages_of(const std::vector<View>& views)
{
    std::vector<std::string> languages;
    for (const View& view : views) {
        if (languages.empty() || languages.back() != view.language) {
            languages.push_back(view.language);
        }
    }
    return languages;
}

void write_one(const ResourceFolder& folder, const fs::path& path, const Selection& selection)
{
    const View view = first_view(selection, folder);
    SheetMaker maker(folder, selection, view);
    const bool all_languages = selection.pages.size() == 1 && selection.languages.empty();
    if (path.has_parent_path()) {
        make_folder(path.parent_path());
    }
    (all_languages ? maker.languages_of(*selection.pages.begin(), view, languages_of(views_of(selection, folder)))
                   : maker.pages_of(view))
        .save(path);
}

class FolderOfSheets {
public:
    FolderOfSheets(const ResourceFolder& folder, const fs::path& path, const Selection& selection)
        : folder_(folder), path_(path), selection_(selection), views_(views_of(selection, folder)),
          maker_(folder, selection, views_.front())
    {
        make_folder(path);
    }

    std::vector<fs::path> write()
    {
        for (const View& view : views_) {
            add(maker_.pages_of(view), view.language + "-" + size_of(view));
        }
        for (const View& view : views_) {
            if (view.language == views_.front().language) {
                write_pages(view);
            }
        }
        writer_.finish();
        return std::move(files_);
    }

private:
    void write_pages(const View& view)
    {
        for (const auto& [name, page] : folder_.pages) {
            if (takes_page(selection_, name)) {
                add(maker_.languages_of(name, view, languages_of(views_)), "page-" + name + "-" + size_of(view));
            }
        }
    }

    void add(Canvas sheet, const std::string& name)
    {
        files_.push_back(path_ / (name + ".png"));
        writer_.write(std::move(sheet), files_.back());
    }

    const ResourceFolder& folder_;
    const fs::path& path_;
    const Selection& selection_;
    std::vector<View> views_;
    SheetMaker maker_;
    PictureWriter writer_;
    std::vector<fs::path> files_;
};

} // namespace

std::vector<fs::path> write_sheets(const ResourceFolder& folder, const fs::path& path, const Selection& selection)
{
    const Selection usable = checked(selection, folder);
    if (path.extension() == ".png") {
        write_one(folder, path, usable);
        return {path};
    }
    refuse_inside(folder, path);
    return FolderOfSheets(folder, path, usable).write();
}

} // namespace pages
