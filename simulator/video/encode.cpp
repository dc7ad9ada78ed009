#include "simulator/video/encode.h"

#include <SDL_endian.h>
#include <memory>
#include <stdexcept>
#include <turbojpeg.h>

#include "simulator/base/guard.h"
#include "simulator/video/cairo_image.h"

namespace sim {
namespace {

constexpr int pixel_format = SDL_BYTEORDER == SDL_LIL_ENDIAN ? TJPF_BGRX : TJPF_XRGB; // a Color in memory

std::runtime_error failure(const char* format, const Image& image, const char* words)
{
    return std::runtime_error(std::string("can't make a ") + format + " of " + std::to_string(image.size.width) + "x" +
                              std::to_string(image.size.height) + " pixels: " + words);
}

cairo_status_t append(void* file, const unsigned char* bytes, unsigned size)
{
    return guarded("png", CAIRO_STATUS_NO_MEMORY, [=] {
        static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), size);
        return CAIRO_STATUS_SUCCESS;
    });
}

} // namespace

std::string encode_jpeg(const Image& image, int quality)
{
    const std::unique_ptr<void, EndWith<tjDestroy>> compressor(tjInitCompress());
    const auto* pixels = reinterpret_cast<const unsigned char*>(image.pixels.data());
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const int status = tjCompress2(compressor.get(), pixels, image.size.width, 0, image.size.height, pixel_format,
                                   &bytes, &size, TJSAMP_420, quality, 0);
    const std::unique_ptr<unsigned char, EndWith<tjFree>> owner(bytes);
    if (status != 0) {
        throw failure("JPEG", image, tjGetErrorStr2(compressor.get()));
    }
    return {reinterpret_cast<const char*>(bytes), size};
}

std::string encode_png(const Image& image, bool alpha)
{
    const CairoSurface surface = surface_of(image, alpha ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24);
    std::string file;
    const cairo_status_t status = cairo_surface_write_to_png_stream(surface.get(), append, &file);
    if (status != CAIRO_STATUS_SUCCESS) {
        throw failure("PNG", image, cairo_status_to_string(status));
    }
    return file;
}

} // namespace sim
