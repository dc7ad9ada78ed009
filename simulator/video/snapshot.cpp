#include "simulator/video/snapshot.h"

#include <SDL_image.h>
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>

#include "simulator/base/data.h"
#include "simulator/video/cairo_image.h"
#include "simulator/video/encode.h"

namespace sim {

void check_snapshot_path(const std::filesystem::path& path)
{
    const std::string words = "snapshot " + path.string() + ": ";
    if (path.extension() != ".png") {
        throw BadInput(words + "expected a file name that ends in .png");
    }
    if (std::filesystem::is_directory(path)) {
        throw BadInput(words + "a folder has this name");
    }
    // Trying is the only sure way: rights alone don't tell of read-only and special file systems.
    const std::filesystem::path trial = path.string() + ".part";
    if (!std::ofstream(trial)) {
        throw BadInput(words + "can't write there: " + std::generic_category().message(errno));
    }
    std::filesystem::remove(trial);
}

void save_png(const Image& image, const std::filesystem::path& path)
{
    write_text_file(path, encode_png(image, false));
}

Image load_png(const std::filesystem::path& path)
{
    using Surface = std::unique_ptr<SDL_Surface, EndWith<SDL_FreeSurface>>;
    const Surface file(IMG_Load(path.c_str()));
    const Surface surface(file == nullptr ? nullptr
                                          : SDL_ConvertSurfaceFormat(file.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    if (surface == nullptr) {
        throw BadInput("picture " + path.string() + ": can't be read: " + SDL_GetError());
    }
    Image image({surface->w, surface->h}); // rows of whole words have no gap between them here either
    std::copy_n(static_cast<const Color*>(surface->pixels), image.pixels.size(), image.pixels.begin());
    return image;
}

} // namespace sim
