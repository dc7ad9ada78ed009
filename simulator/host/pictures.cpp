#include "simulator/host/pictures.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "simulator/core/bitmap_file.h"
#include "simulator/core/child_program.h"
#include "simulator/core/data_folder.h"
#include "simulator/core/errors.h"
#include "simulator/core/resources.h"
#include "simulator/core/text_file.h"

namespace sim {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds drawing_limit{5};

bool is_older(const fs::path& file, const fs::path& other)
{
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    return error || time < fs::last_write_time(other, error);
}

bool are_equal(const fs::path& file, const fs::path& other)
{
    try {
        return read_text_file(file) == read_text_file(other);
    } catch (const BadInput&) { // what can't be read is no copy of anything
        return false;
    }
}

bool is_staged(const fs::path& file)
{
    const fs::path bitmap = staged_pictures() / file.stem().concat(".bmp");
    if (file.extension() == ".bmp") {
        return are_equal(file, bitmap);
    }
    const fs::path source = default_resources() / "pic" / file.filename();
    return are_equal(file, source) && !is_older(bitmap, source);
}

/// The words of the program that draws, with the place before them as in all problems.
std::string problem_with(const fs::path& svg, const std::string& words)
{
    constexpr std::string_view mark = " on line ";
    const std::string& path = svg.string();
    const std::size_t number = words.find(mark);
    const std::string line = number == words.npos ? "" : ":" + std::to_string(std::atoi(&words[number + mark.size()]));
    std::string reason = words.substr(0, words.find('\n'));
    if (const std::size_t place = reason.find(path); place != reason.npos) {
        const std::size_t behind = place + path.size();
        reason.compare(behind, 2, ": ") == 0 ? reason.erase(0, behind + 2) : reason.replace(place, path.size(), "here");
    }
    return path + line + ": " + reason;
}

/// The picture as the bitmap file that the menu can load.
std::string draw_picture(const fs::path& file)
{
    const TemporaryFolder folder;
    fs::path picture = file;
    if (file.extension() == ".svg") {
        picture = folder.path() / "picture.png";
        const std::string words =
            run_program({"rsvg-convert", "--output", picture.string(), file.string()}, drawing_limit);
        if (!words.empty()) {
            throw std::runtime_error(problem_with(file, words));
        }
    }
    const fs::path bitmap = folder.path() / "picture.bmp";
    convert_to_bitmap(picture, bitmap);
    return read_text_file(bitmap);
}

} // namespace

Pictures::Pictures(const fs::path& resources) : folder_(plain_path(resources) / "pic") {}

bool Pictures::has_name_of_one(const fs::path& file) const
{
    return file.parent_path() == folder_ && (file.extension() == ".svg" || file.extension() == ".bmp");
}

std::vector<fs::path> Pictures::outdated() const
{
    std::vector<fs::path> files;
    std::error_code error; // a folder that isn't there has none
    for (const auto& entry : fs::directory_iterator(folder_, error)) {
        if (has_name_of_one(entry.path()) && !is_staged(entry.path())) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void Pictures::take(const fs::path& file)
{
    const std::string name = file.stem().concat(".bmp").string();
    if (fs::exists(fs::symlink_status(file))) {
        replaced_.replace(name, draw_picture(file));
    } else {
        replaced_.restore(name);
    }
}

} // namespace sim
