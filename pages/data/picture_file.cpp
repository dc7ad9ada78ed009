#include "pages/data/picture_file.h"

#include <SDL.h>
#include <cairo.h>
#include <cmath>
#include <cstdlib>
#include <librsvg/rsvg.h>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "pages/data/errors.h"
#include "pages/data/text_file.h"

namespace pages {
namespace {

constexpr double most_pixels = 4096; // of a side; the menu has half of that at most

template <auto Free>
struct FreeWith {
    template <typename Thing>
    void operator()(Thing* thing) const
    {
        Free(thing);
    }
};
using Handle = std::unique_ptr<RsvgHandle, FreeWith<g_object_unref>>;
using Canvas = std::unique_ptr<cairo_surface_t, FreeWith<cairo_surface_destroy>>;
using Pen = std::unique_ptr<cairo_t, FreeWith<cairo_destroy>>;
using Surface = std::unique_ptr<SDL_Surface, FreeWith<SDL_FreeSurface>>;

/// The number behind a word of a message; 0 when there is none.
int number_behind(std::string_view word, const std::string& message)
{
    const std::size_t place = message.find(word);
    return place == message.npos ? 0 : std::atoi(message.c_str() + place + word.size());
}

[[noreturn]] void fail(const std::filesystem::path& path, const std::string& text, GError* error)
{
    const std::unique_ptr<GError, FreeWith<g_error_free>> owner(error);
    if (text.find_first_not_of(" \t\r\n") == text.npos) {
        throw BadInput(Place{path.string()}, "no picture: the file is empty, expected a drawing");
    }
    const std::string words = error == nullptr ? "can't be drawn" : error->message;
    throw BadInput({path.string(), number_behind(" on line ", words), number_behind(" column ", words)},
                   "no picture: " + words.substr(0, words.find('\n')) + ", expected a drawing in SVG");
}

std::uint32_t straight(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 0) {
        return 0;
    }
    std::uint32_t result = alpha << 24;
    for (const int shift : {16, 8, 0}) {
        const std::uint32_t part = pixel >> shift & 0xFFU;
        result |= (part * 255 + alpha / 2) / alpha << shift;
    }
    return result;
}

Picture pixels_of(cairo_surface_t* canvas)
{
    cairo_surface_flush(canvas);
    Picture picture{cairo_image_surface_get_width(canvas), cairo_image_surface_get_height(canvas), {}};
    const unsigned char* row = cairo_image_surface_get_data(canvas);
    for (int y = 0; y < picture.height; ++y, row += cairo_image_surface_get_stride(canvas)) {
        const auto* pixel = reinterpret_cast<const std::uint32_t*>(row);
        for (int x = 0; x < picture.width; ++x) {
            picture.pixels.push_back(straight(pixel[x]));
        }
    }
    return picture;
}

Picture draw_svg(const std::filesystem::path& path)
{
    const std::string text = read_text_file(path);
    GError* error = nullptr;
    const Handle handle(rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(text.data()), text.size(), &error));
    if (handle == nullptr) {
        fail(path, text, error);
    }
    double width = 0;
    double height = 0;
    if (rsvg_handle_get_intrinsic_size_in_pixels(handle.get(), &width, &height) == 0 || width < 1 || height < 1 ||
        width > most_pixels || height > most_pixels) {
        throw BadInput(Place{path.string()},
                       "the picture's size can't be used, expected width and height from 1 to 4096");
    }
    const Canvas canvas(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(std::ceil(width)),
                                                   static_cast<int>(std::ceil(height))));
    const Pen pen(cairo_create(canvas.get()));
    const RsvgRectangle place = {0, 0, std::ceil(width), std::ceil(height)};
    if (rsvg_handle_render_document(handle.get(), pen.get(), &place, &error) == 0) {
        fail(path, text, error);
    }
    return pixels_of(canvas.get());
}

Picture read_bitmap(const std::filesystem::path& path)
{
    const Surface loaded(SDL_LoadBMP(path.c_str()));
    const Surface argb(loaded == nullptr ? nullptr
                                         : SDL_ConvertSurfaceFormat(loaded.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    if (argb == nullptr) {
        throw BadInput(Place{path.string()},
                       std::string("no picture: ") + SDL_GetError() + ", expected a drawing in SVG or a BMP");
    }
    Picture picture{argb->w, argb->h, {}};
    for (int y = 0; y < argb->h; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(static_cast<const char*>(argb->pixels) +
                                                                 static_cast<std::ptrdiff_t>(y) * argb->pitch);
        picture.pixels.insert(picture.pixels.end(), row, row + argb->w);
    }
    return picture;
}

} // namespace

Picture read_picture(const std::filesystem::path& path)
{
    if (path.extension() != ".svg" && path.extension() != ".bmp") {
        throw BadInput(Place{path.string()},
                       "nobody reads a picture of this kind, expected " + path.stem().string() + ".svg");
    }
    return path.extension() == ".svg" ? draw_svg(path) : read_bitmap(path);
}

std::string bitmap_of(const Picture& picture)
{
    const Surface surface(SDL_CreateRGBSurfaceWithFormatFrom(const_cast<std::uint32_t*>(picture.pixels.data()),
                                                             picture.width, picture.height, 32, picture.width * 4,
                                                             SDL_PIXELFORMAT_ARGB8888));
    std::string content(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) * 4 + 1024,
                        '\0');
    SDL_RWops* file = SDL_RWFromMem(content.data(), static_cast<int>(content.size()));
    if (surface == nullptr || file == nullptr || SDL_SaveBMP_RW(surface.get(), file, 0) != 0) {
        throw std::runtime_error(std::string("can't make a bitmap: ") + SDL_GetError());
    }
    content.resize(static_cast<std::size_t>(SDL_RWtell(file)));
    SDL_RWclose(file);
    return content;
}

} // namespace pages
