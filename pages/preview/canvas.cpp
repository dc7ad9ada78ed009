#include "pages/preview/canvas.h"

#include <SDL_image.h>
#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "pages/data/errors.h"

namespace pages {
namespace {

constexpr Pixel opaque = 0xFF000000;
constexpr std::array<int, 3> color_shifts = {0, 8, 16};

constexpr Pixel part(Pixel pixel, int shift) { return pixel >> shift & 0xFF; }

/// Between two colours, of which the second counts weight of whole.
Pixel mixed(Pixel first, Pixel second, Pixel weight, Pixel whole)
{
    Pixel result = opaque;
    for (const int shift : color_shifts) {
        result |= (part(first, shift) * (whole - weight) + part(second, shift) * weight + whole / 2) / whole << shift;
    }
    return result;
}

Pixel mean(const Canvas& canvas, int left, int top, int side)
{
    std::array<Pixel, 3> sums{};
    for (int y = top; y < top + side; ++y) {
        for (int x = left; x < left + side; ++x) {
            for (std::size_t i = 0; i < sums.size(); ++i) {
                sums[i] += part(canvas.row(y)[x], color_shifts[i]);
            }
        }
    }
    Pixel result = opaque;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        result |= sums[i] / static_cast<Pixel>(side * side) << color_shifts[i];
    }
    return result;
}

} // namespace

Canvas::Canvas(int width, int height, Pixel color)
    : surface_(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_ARGB8888))
{
    if (surface_ == nullptr) {
        throw std::runtime_error("no memory for a picture of " + std::to_string(width) + " by " +
                                 std::to_string(height) + " pixels");
    }
    fill({0, 0, width, height}, color);
}

Canvas::Canvas(const std::filesystem::path& file)
{
    const std::unique_ptr<SDL_Surface, Free> loaded(IMG_Load_RW(SDL_RWFromFile(file.c_str(), "rb"), 1));
    if (loaded != nullptr) {
        surface_.reset(SDL_ConvertSurfaceFormat(loaded.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    }
    if (surface_ == nullptr) {
        throw BadInput({file.string(), 0, 0}, std::string("not readable as a picture: ") + SDL_GetError());
    }
}

void Canvas::lay_over(const SDL_Surface& menu)
{
    for (int y = 0; y < std::min(height(), menu.h); ++y) {
        Pixel* to = row(y);
        const Pixel* from = pixels_of(menu, y);
        for (int x = 0; x < std::min(width(), menu.w); ++x) {
            to[x] = mixed(to[x], from[x], part(from[x], 24), 255);
        }
    }
}

void Canvas::put(const Canvas& picture, int left, int top)
{
    const int count = std::min(picture.width(), width() - left);
    for (int y = 0; y < std::min(picture.height(), height() - top); ++y) {
        std::copy_n(picture.row(y), count, row(top + y) + left);
    }
}

void Canvas::fill(const SDL_Rect& rect, Pixel color) { (void)SDL_FillRect(surface_.get(), &rect, color); }

Canvas Canvas::smaller(int side) const
{
    Canvas result(width() / side, height() / side, opaque);
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            result.row(y)[x] = mean(*this, x * side, y * side, side);
        }
    }
    return result;
}

void Canvas::save(const std::filesystem::path& file) const
{
    if (IMG_SavePNG(surface_.get(), file.c_str()) != 0) {
        throw std::runtime_error(file.string() + " can't be written: " + SDL_GetError());
    }
}

std::string Canvas::png() const
{
    std::string bytes(static_cast<std::size_t>(width()) * static_cast<std::size_t>(height()) * 5 + 1024, '\0');
    SDL_RWops* memory = SDL_RWFromMem(bytes.data(), static_cast<int>(bytes.size()));
    const bool written = memory != nullptr && IMG_SavePNG_RW(surface_.get(), memory, 0) == 0;
    const Sint64 size = written ? SDL_RWtell(memory) : 0;
    if (memory != nullptr) {
        (void)SDL_RWclose(memory); // memory has nothing to fail with
    }
    if (!written) {
        throw std::runtime_error(std::string("a picture can't be made into PNG: ") + SDL_GetError());
    }
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

Canvas landscape(int width, int height)
{
    constexpr std::array<Pixel, 5> colors = {0xFF5B87AE, 0xFFA9C3D6, 0xFFDDE3DF, 0xFF7E8A63, 0xFF37422F};
    Canvas result(width, height, opaque);
    const int band = height / static_cast<int>(colors.size() - 1);
    for (int y = 0; y < height; ++y) { // alike along a row, which makes small files
        const auto first = std::min(static_cast<std::size_t>(y / band), colors.size() - 2);
        const int beyond = std::min(y - static_cast<int>(first) * band, band);
        const Pixel color =
            mixed(colors[first], colors[first + 1], static_cast<Pixel>(beyond), static_cast<Pixel>(band));
        result.fill({0, y, width, 1}, color);
    }
    return result;
}

} // namespace pages
