// Build step: turns a PNG picture into the 32-bit BMP with alpha that the menu loads.
#include <SDL_image.h>

#include <cstdio>
#include <memory>

namespace {

using Surface = std::unique_ptr<SDL_Surface, decltype(&SDL_FreeSurface)>;

int fail(const char* doing, const char* path)
{
    std::fprintf(stderr, "png2bmp: can't %s %s: %s\n", doing, path, SDL_GetError());
    return 1;
}

int convert(const char* png_path, const char* bmp_path)
{
    const Surface picture(IMG_Load(png_path), &SDL_FreeSurface);
    if (picture == nullptr) {
        return fail("read", png_path);
    }
    const Surface argb(SDL_ConvertSurfaceFormat(picture.get(), SDL_PIXELFORMAT_ARGB8888, 0), &SDL_FreeSurface);
    if (argb == nullptr) {
        return fail("convert", png_path);
    }
    return SDL_SaveBMP(argb.get(), bmp_path) == 0 ? 0 : fail("write", bmp_path);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: png2bmp PICTURE.png PICTURE.bmp\n");
        return 2;
    }
    const int status = convert(argv[1], argv[2]);
    IMG_Quit();
    return status;
}
