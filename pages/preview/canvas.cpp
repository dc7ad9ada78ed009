#include "pages/preview/canvas.h"

#include <algorithm>
#include <array>
#include <png.h>
#include <stdexcept>

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

/// The order in which a pixel's bytes lie in memory.
constexpr png_uint_32 byte_order = SDL_BYTEORDER == SDL_LIL_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

/// To be written in a tenth of the time that the smallest file would take.
png_image png_of(const Canvas& canvas)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(canvas.width());
    image.height = static_cast<png_uint_32>(canvas.height());
    image.format = byte_order;
    image.flags = PNG_IMAGE_FLAG_FAST;
    return image;
}

Canvas read_png(const std::filesystem::path& file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, file.c_str()) == 0) {
        throw BadInput({file.string(), 0, 0}, std::string("not readable as a picture: ") + image.message);
    }
    image.format = byte_order;
    Canvas canvas(static_cast<int>(image.width), static_cast<int>(image.height), opaque);
    if (png_image_finish_read(&image, nullptr, canvas.row(0), canvas.surface()->pitch, nullptr) == 0) {
        throw BadInput({file.string(), 0, 0}, std::string("not readable as a picture: ") + image.message);
    }
    return canvas;
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

Canvas::Canvas(const std::filesystem::path& file) : Canvas(read_png(file)) {}

void Canvas::lay_over(const SDL_Surface& menu)
{
    for (int y = 0; y < std::min(height(), menu.h); ++y) {
        Pixel* to = row(y);
        const Pixel* from = pixels_of(menu, y);
        Pixel ground = 0;
        Pixel above = 0;
        Pixel blended = 0; // as most pixels have both colours of the one before
        for (int x = 0; x < std::min(width(), menu.w); ++x) {
            if (x == 0 || to[x] != ground || from[x] != above) {
                ground = to[x];
                above = from[x];
                blended = mixed(ground, above, part(above, 24), 255);
            }
            to[x] = blended;
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
    png_image image = png_of(*this);
    if (png_image_write_to_file(&image, file.c_str(), 0, surface_->pixels, surface_->pitch, nullptr) == 0) {
        throw BadInput(file.string() + " can't be written: " + image.message);
    }
}

std::string Canvas::png() const
{
    png_image image = png_of(*this);
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string bytes(size, '\0');
    if (png_image_write_to_memory(&image, bytes.data(), &size, 0, surface_->pixels, surface_->pitch, nullptr) == 0) {
        throw std::runtime_error(std::string("a picture can't be made into PNG: ") + image.message);
    }
    bytes.resize(size);
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
