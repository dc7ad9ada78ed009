// The files that the library opens are those of the folder. The linker sends the library's calls of open, access, IMG_Load
// and vprintf here.
#include <SDL_image.h>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <string>
#include <system_error>

#include "pages/data/picture_file.h"
#include "pages/menu/camera.h"

namespace pages {
namespace {

namespace fs = std::filesystem;

/// A picture that was read, with the time of its file then.
struct Loaded {
    fs::file_time_type time;
    Picture picture; ///< without pixels where the file holds none that can be used
};

/// The picture that the library means by a path, with its name; null when the folder has none of its name.
const std::pair<const std::string, fs::path>* find_picture(const std::string& path)
{
    const auto& pictures = camera().folder().pictures;
    const std::size_t name = path.rfind('/') + 1;
    const auto found = pictures.find(path.substr(name, path.rfind('.') - name));
    return found == pictures.end() ? nullptr : &*found;
}

SDL_Surface* surface_of(const Picture& picture)
{
    SDL_Surface* surface = picture.pixels.empty() ? nullptr
                                                  : SDL_CreateRGBSurfaceWithFormat(0, picture.width, picture.height, 32,
                                                                                   SDL_PIXELFORMAT_ARGB8888);
    for (int y = 0; surface != nullptr && y < picture.height; ++y) {
        const auto* row = picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width;
        std::copy(row, row + picture.width,
                  reinterpret_cast<std::uint32_t*>(static_cast<char*>(surface->pixels) +
                                                   static_cast<std::ptrdiff_t>(y) * surface->pitch));
    }
    return surface;
}

const Picture& load(const fs::path& file)
{
    static std::map<fs::path, Loaded> known;
    std::error_code ignored; // a file that has gone can't be read either
    const auto time = fs::last_write_time(file, ignored);
    const auto found = known.find(file);
    if (found != known.end() && found->second.time == time) {
        return found->second.picture;
    }
    Loaded& loaded = known[file];
    loaded = {time, {}};
    try {
        loaded.picture = read_picture(file);
    } catch (const BadInput& mistake) {
        camera().add_line(mistake.what());
    }
    return loaded.picture;
}

} // namespace
} // namespace pages

extern "C" {

int __real_open(const char* path, int flags, ...);         // NOLINT(bugprone-reserved-identifier)
int __wrap_open(const char* path, int flags, ...);         // NOLINT(bugprone-reserved-identifier)
int __wrap_access(const char* path, int mode);             // NOLINT(bugprone-reserved-identifier)
int __wrap_vprintf(const char* format, va_list arguments); // NOLINT(bugprone-reserved-identifier)
SDL_Surface* __wrap_IMG_Load(const char* path);            // NOLINT(bugprone-reserved-identifier)

int __wrap_open(const char* path, int flags, ...) // NOLINT: the library opens fonts alone
{
    const std::filesystem::path file = pages::camera().folder().fonts / std::filesystem::path(path).filename();
    pages::camera().set_font_file(file);
    return __real_open(file.c_str(), flags);
}

int __wrap_access(const char* path, int /*mode*/) // NOLINT
{
    return pages::find_picture(path) != nullptr ? 0 : -1;
}

int __wrap_vprintf(const char* format, va_list arguments) // NOLINT
{
    std::array<char, 512> text{};
    const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
    if (std::strstr(text.data(), "ail") != nullptr || std::strstr(text.data(), "rror") != nullptr) { // else a trace
        pages::camera().add_line(text.data());
    }
    return length;
}

SDL_Surface* __wrap_IMG_Load(const char* path) // NOLINT
{
    const auto* file = pages::find_picture(path);
    if (file == nullptr) {
        return nullptr;
    }
    if (!pages::camera().has_blank_pictures()) {
        return pages::surface_of(pages::load(file->second));
    }
    SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormat(0, 1, 1, 32, SDL_PIXELFORMAT_ARGB8888);
    surface->userdata = const_cast<char*>(file->first.c_str()); // the name, as long as the folder lives
    return surface;
}

} // extern "C"
