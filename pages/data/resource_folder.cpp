#include "pages/data/resource_folder.h"

#include <system_error>
#include <utility>

#include "pages/data/text_file.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

/// The files of a folder in the order of their names; none for a folder that isn't there.
std::set<fs::path> files_in(const fs::path& folder)
{
    std::set<fs::path> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        files.insert(entry.path());
    }
    return files;
}

class Reader {
public:
    explicit Reader(ResourceFolder& folder) : folder_(folder) {}

    void read()
    {
        const fs::path& root = folder_.root;
        for (const fs::path& file : files_in(page_folder(root))) {
            if (is_page_file(file)) {
                attempt(file, [&] { read_page_file(file); });
            }
        }
        for (const fs::path& file : files_in(root / "lang")) {
            if (file.extension() == ".json") {
                attempt(file, [&] { read_language(file); });
            }
        }
        const fs::path settings = root / "settings.json";
        attempt(settings, [&] { read_settings(settings); });
        for (const fs::path& file : files_in(root / "pic")) {
            if (file.extension() == ".svg" || file.extension() == ".bmp") {
                folder_.pictures.emplace(file.stem().string(), file);
            }
        }
        for (Allowance& allowance : folder_.allowances) {
            allowance.place = below(allowance.place);
        }
        for (const BadInput& mistake : mistakes_) {
            folder_.mistakes.emplace_back(below(mistake.place()), mistake.words());
        }
    }

private:
    template <typename Body>
    void attempt(const fs::path& file, Body body)
    {
        try {
            body();
        } catch (const BadInput& mistake) {
            mistakes_.push_back(mistake);
            folder_.broken.insert(below({file.string()}).file);
        }
    }

    void read_page_file(const fs::path& file)
    {
        const std::string text = read_text_file(file);
        PageFile page = read_page(below({file.string()}).file, text, folder_.mistakes);
        if (page.root == nullptr) {
            folder_.broken.insert(page.file);
        }
        folder_.pages.emplace(page.name, std::move(page));
    }

    void read_language(const fs::path& file)
    {
        Texts texts = read_texts(file, mistakes_, folder_.allowances);
        for (auto& [key, text] : texts) {
            text.place = below(text.place);
        }
        folder_.languages[file.stem().string()] = std::move(texts);
    }

    void read_settings(const fs::path& file)
    {
        folder_.definitions = read_definitions(file, mistakes_);
        for (auto& [id, setting] : folder_.definitions.settings) {
            setting.place = below(setting.place);
        }
        auto& allowed = folder_.definitions.allowances;
        folder_.allowances.insert(folder_.allowances.end(), allowed.begin(), allowed.end());
    }

    Place below(Place place) const
    {
        place.file = fs::path(place.file).lexically_relative(folder_.root).string();
        return place;
    }

    ResourceFolder& folder_;
    std::vector<BadInput> mistakes_; ///< with the paths of files as they were opened
};

} // namespace

bool is_resource_folder(const fs::path& root)
{
    std::error_code ignored; // what can't be looked at can't be used
    return fs::is_directory(page_folder(root), ignored);
}

ResourceFolder read_resource_folder(const fs::path& root, const fs::path& fonts)
{
    if (!is_resource_folder(root)) {
        throw BadInput("resources " + root.string() +
                       ": expected a folder with pages/, lang/ and settings.json; pages/ is missing");
    }
    ResourceFolder folder;
    folder.root = root.lexically_normal();
    std::error_code ignored;
    const fs::path own = root / "ttf";
    folder.fonts = !fonts.empty() ? fonts : fs::is_directory(own, ignored) ? own : fs::path(OSD_RESOURCE_DIR) / "ttf";
    Reader(folder).read();
    return folder;
}

void refuse_inside(const ResourceFolder& folder, const fs::path& output)
{
    std::error_code ignored; // what isn't there yet is made
    const fs::path below =
        fs::weakly_canonical(fs::absolute(output), ignored).lexically_relative(fs::canonical(folder.root, ignored));
    if (!below.empty() && *below.begin() != "..") {
        throw BadInput("the folder " + output.string() + " lies among the resources of " + folder.root.string() +
                       ", expected one outside of them");
    }
}

} // namespace pages
