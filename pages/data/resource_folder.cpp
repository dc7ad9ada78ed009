#include "pages/data/resource_folder.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <system_error>
#include <utility>

#include "pages/data/text_file.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

/// The files of a folder in the order of their names, without those of editors; none for a folder that isn't there.
std::set<fs::path> files_in(const fs::path& folder)
{
    std::set<fs::path> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (!is_of_editor(entry.path())) {
            files.insert(entry.path());
        }
    }
    return files;
}

std::string in_small_letters(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return name;
}

constexpr const char* drawn[] = {".svg", ".bmp"};
constexpr const char* not_drawn[] = {".svg", ".bmp", ".png", ".jpg", ".jpeg", ".gif", ".webp"}; ///< in capitals as well

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
        for (const fs::path& file : files_in(page_folder(root))) {
            if (!is_page_file(file) && is_page_file(in_small_letters(file.string()))) {
                take_misnamed_page(file);
            }
        }
        for (const fs::path& file : files_in(root / "lang")) {
            if (file.extension() == ".json") {
                attempt(file, [&] { read_language(file); });
            }
        }
        const fs::path settings = root / "settings.json";
        attempt(settings, [&] { read_settings(settings); });
        take_pictures(drawn, [](std::string extension) { return extension; });
        take_pictures(not_drawn, in_small_letters); // their names are known, that they can't be drawn is told
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

    template <std::size_t N, typename Change>
    void take_pictures(const char* const (&endings)[N], Change change)
    {
        for (const fs::path& file : files_in(folder_.root / "pic")) {
            if (std::count(std::begin(endings), std::end(endings), change(file.extension().string())) > 0) {
                folder_.pictures.emplace(file.stem().string(), file);
            }
        }
    }

    /// A page that can't be read is a broken one.
    void read_page_file(const fs::path& file)
    {
        PageFile& page = folder_.pages[page_name(file)];
        page.name = page_name(file);
        page.file = below({file.string()}).file;
        page = read_page(page.file, read_text_file(file), folder_.mistakes);
        if (page.root == nullptr) {
            folder_.broken.insert(page.file);
        }
    }

    /// "image_page.XML" is meant to be a page, and the menu won't find it.
    void take_misnamed_page(const fs::path& file)
    {
        const std::string name = file.filename().string();
        const std::string page = page_name(in_small_letters(name));
        const std::string below_root = below({file.string()}).file;
        if (folder_.pages.emplace(page, PageFile{page, below_root, "", nullptr, {}}).second) {
            folder_.broken.insert(below_root);
        }
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

fs::path nearest_fonts(const fs::path& root)
{
    std::error_code ignored; // then there is none
    const fs::path installed = fs::read_symlink("/proc/self/exe", ignored).parent_path() / OSD_PAGES_TO_FONTS;
    for (const fs::path& folder : {root / "ttf", installed}) {
        if (fs::is_directory(folder, ignored)) {
            return folder;
        }
    }
    return fs::path(OSD_RESOURCE_DIR) / "ttf";
}

} // namespace

std::string language_file(const std::string& language) { return "lang/" + language + ".json"; }

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
    folder.fonts = fonts.empty() ? nearest_fonts(root) : fonts;
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
