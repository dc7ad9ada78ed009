#include "simulator/core/bitmap_file.h"

#include <SDL_image.h>
#include <stdexcept>
#include <string>
#include <system_error>

#include "simulator/core/surface.h"

namespace sim {
namespace {

[[noreturn]] void fail(const char* doing, const std::filesystem::path& path, const std::string& reason)
{
    throw std::runtime_error(std::string("can't ") + doing + " " + path.string() + ": " + reason);
}

} // namespace

void convert_to_bitmap(const std::filesystem::path& picture, const std::filesystem::path& bitmap)
{
    SDL_RWops* file = SDL_RWFromFile(picture.c_str(), "rb");
    const Surface loaded(file == nullptr ? nullptr : IMG_Load_RW(file, 1));
    if (loaded == nullptr) {
        fail("read", picture, SDL_GetError());
    }
    const Surface argb(SDL_ConvertSurfaceFormat(loaded.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    if (argb == nullptr) {
        fail("convert", picture, SDL_GetError());
    }
    const std::filesystem::path next = bitmap.string() + ".new";
    if (SDL_SaveBMP(argb.get(), next.c_str()) != 0) {
        fail("write", bitmap, SDL_GetError());
    }
    std::error_code error;
    std::filesystem::rename(next, bitmap, error);
    if (error) {
        fail("write", bitmap, error.message());
    }
}

} // namespace sim
