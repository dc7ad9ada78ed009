#include "pages/preview/difference.h"

#include <algorithm>
#include <fstream>
#include <set>

#include "pages/data/errors.h"
#include "pages/data/text_file.h"
#include "pages/preview/canvas.h"
#include "pages/preview/writer.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

constexpr const char* list_name = "pictures.txt";
constexpr Pixel changed_color = 0xFFFF2FA0; // no page has it

/// A grey so dark that the changed colour stands out.
Pixel faded(Pixel pixel)
{
    const Pixel grey = ((pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) + (pixel & 0xFF)) / 9;
    return 0xFF000000 | grey << 16 | grey << 8 | grey;
}

/// Paints what differs into the marked picture; false when nothing does.
bool mark(const Canvas& now, const Canvas& before, Canvas& marked)
{
    bool differs = now.width() != before.width() || now.height() != before.height();
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x) {
            const bool same = x < before.width() && y < before.height() && now.row(y)[x] == before.row(y)[x];
            marked.row(y)[x] = same ? faded(now.row(y)[x]) : changed_color;
            differs = differs || !same;
        }
    }
    return differs;
}

void copy_picture(const fs::path& from, const fs::path& to)
{
    make_folder(to.parent_path());
    fs::copy_file(from, to, fs::copy_options::overwrite_existing);
}

class Comparison {
public:
    Comparison(const fs::path& folder, const fs::path& earlier) : folder_(folder), earlier_(earlier) {}

    bool differs(const std::string& file)
    {
        if (read_text_file(folder_ / file) == read_text_file(earlier_ / file)) {
            return false;
        }
        const Canvas now(folder_ / file);
        const Canvas before(earlier_ / file);
        Canvas marked(now.width(), now.height(), 0);
        if (!mark(now, before, marked)) {
            return false;
        }
        keep(file);
        make_folder((folder_ / difference_folder / file).parent_path());
        writer_.write(std::move(marked), folder_ / difference_folder / file);
        return true;
    }

    void keep(const std::string& file) { copy_picture(earlier_ / file, folder_ / before_folder / file); }
    void finish() { writer_.finish(); }

private:
    const fs::path& folder_;
    const fs::path& earlier_;
    PictureWriter writer_;
};

} // namespace

void write_list(const fs::path& folder, const std::vector<std::string>& files)
{
    std::string lines;
    for (const std::string& file : files) {
        lines += file + "\n";
    }
    write_text(folder / list_name, lines);
}

bool has_list(const fs::path& folder)
{
    std::error_code ignored; // what can't be looked at is no list
    return fs::is_regular_file(folder / list_name, ignored);
}

std::vector<std::string> read_list(const fs::path& folder)
{
    std::ifstream list(folder / list_name);
    if (!list) {
        throw BadInput("--against " + folder.string() + ": no earlier preview, expected a folder with " + list_name);
    }
    std::vector<std::string> files;
    for (std::string line; std::getline(list, line);) {
        files.push_back(line);
    }
    return files;
}

Changes compare(const fs::path& folder, const std::vector<std::string>& files, const fs::path& earlier,
                const std::vector<std::string>& earlier_files)
{
    Changes changes;
    Comparison comparison(folder, earlier);
    const std::set<std::string> known(earlier_files.begin(), earlier_files.end());
    for (const std::string& file : files) {
        if (known.count(file) == 0) {
            changes[file] = Change::Added;
        } else if (comparison.differs(file)) {
            changes[file] = Change::Changed;
        }
    }
    const std::set<std::string> drawn(files.begin(), files.end());
    for (const std::string& file : earlier_files) {
        if (drawn.count(file) == 0) {
            comparison.keep(file);
            changes[file] = Change::Gone;
        }
    }
    comparison.finish();
    return changes;
}

} // namespace pages
