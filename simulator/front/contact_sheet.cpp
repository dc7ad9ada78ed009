#include "simulator/front/contact_sheet.h"

#include <iostream>

#include "simulator/core/data.h"
#include "simulator/core/page_files.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

constexpr Size cell_size = {480, 540}; // the left half of the picture, where the menu stands
constexpr int cells_per_row = 7;
constexpr std::uint32_t style_count = 3;

/// The mean of a square of pixels.
Color mean(const Image& image, int left, int top, int side)
{
    std::uint32_t sums[3] = {};
    for (int y = top; y < top + side; ++y) {
        for (int x = left; x < left + side; ++x) {
            for (int part = 0; part < 3; ++part) {
                sums[part] += component(image.row(y)[x], part * 8);
            }
        }
    }
    const auto count = static_cast<std::uint32_t>(side * side);
    return make_color(255, sums[2] / count, sums[1] / count, sums[0] / count);
}

void put_cell(const Image& picture, Image& sheet, int cell)
{
    const int left = cell % cells_per_row * cell_size.width;
    const int top = cell / cells_per_row * cell_size.height;
    const int side = picture.size.height / cell_size.height; // both sizes of the picture are multiples of a cell's
    for (int y = 0; y < cell_size.height; ++y) {
        for (int x = 0; x < cell_size.width; ++x) {
            sheet.row(top + y)[left + x] = mean(picture, x * side, y * side, side);
        }
    }
}

void write_sheet(MenuHost& host, const std::filesystem::path& path)
{
    const std::vector<std::string> pages = page_names(host.camera().resources());
    const auto rows = (static_cast<int>(pages.size()) + cells_per_row - 1) / cells_per_row;
    Image sheet(Size{cells_per_row * cell_size.width, rows * cell_size.height});
    for (std::size_t i = 0; i < pages.size(); ++i) {
        host.show_over_main(pages[i]);
        put_cell(host.camera().look_at(0), sheet, static_cast<int>(i));
    }
    save_png(sheet, path);
    std::cout << "wrote " << path.string() << std::endl;
}

void write_all(Camera& camera, const Options& options, const std::filesystem::path& folder)
{
    for (std::uint32_t style = 0; style < style_count; ++style) {
        MenuHost host(camera, {options.pixel_format, style, options.uhd, "", ""});
        for (const auto& [option, name] : camera.definitions().languages) {
            camera.change(language_setting, option);
            const std::string size = options.uhd ? "4k" : "1080p";
            write_sheet(host, folder / (name + "-style" + std::to_string(style) + "-" + size + ".png"));
        }
    }
}

void make_folder(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw BadInput("contact sheets: the folder " + folder.string() + " can't be made: " + error.message());
    }
}

} // namespace

void write_contact_sheets(const std::filesystem::path& path, const Options& options)
{
    const bool one = path.extension() == ".png";
    one ? check_snapshot_path(path) : make_folder(path);
    const TemporaryFolder data;
    Camera camera({options.resources, data.path(), false, options.uhd, true, options.language, {}});
    if (!one) {
        write_all(camera, options, path);
        return;
    }
    MenuHost host(camera, {options.pixel_format, options.style, options.uhd, "", ""});
    write_sheet(host, path);
}

} // namespace sim
