#include "simulator/video/snapshot.h"

#include <SDL_image.h>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "simulator/base/data.h"
#include "simulator/base/surface.h"
#include "simulator/video/encode.h"

namespace sim {
namespace {

/// In the same folder as the picture, so that renaming it is one step.
std::string temporary_name(const std::filesystem::path& path)
{
    return path.string() + "." + std::to_string(::getpid()) + ".tmp";
}

} // namespace

void check_snapshot_path(const std::filesystem::path& path)
{
    if (path.extension() != ".png") {
        throw BadInput("snapshot " + path.string() + ": expected a file name that ends in .png");
    }
    if (std::filesystem::is_directory(path)) {
        throw BadInput("snapshot " + path.string() + ": a folder has this name");
    }
    // Trying is the only sure way: rights alone don't tell of read-only and special file systems.
    const std::string temporary = temporary_name(path);
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (file < 0) {
        throw BadInput("snapshot " + path.string() + ": can't write there: " + std::strerror(errno));
    }
    ::close(file);
    ::unlink(temporary.c_str());
}

void save_png(const Image& image, const std::filesystem::path& path)
{
    const std::string bytes = encode_png(image, false);
    const std::string temporary = temporary_name(path);
    errno = 0;
    std::ofstream file(temporary, std::ios::binary);
    file << bytes << std::flush;
    if (!file) {
        const std::string words = std::strerror(errno);
        std::error_code ignored; // the first failure is the one to tell
        std::filesystem::remove(temporary, ignored);
        throw std::runtime_error("snapshot " + path.string() + ": " + words);
    }
    file.close();
    std::filesystem::rename(temporary, path);
}

Image load_png(const std::filesystem::path& path)
{
    const Surface file(IMG_Load(path.c_str()));
    const Surface surface(file == nullptr ? nullptr
                                          : SDL_ConvertSurfaceFormat(file.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    if (surface == nullptr) {
        throw BadInput("picture " + path.string() + ": can't be read: " + SDL_GetError());
    }
    Image image({surface->w, surface->h});
    for (int y = 0; y < surface->h; ++y) {
        const auto* bytes = static_cast<const char*>(surface->pixels) + std::ptrdiff_t{y} * surface->pitch;
        std::copy_n(reinterpret_cast<const Color*>(bytes), surface->w, image.row(y));
    }
    return image;
}

} // namespace sim
