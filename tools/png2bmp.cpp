// Build step: turns a PNG picture into the 32-bit BMP with alpha that the menu loads.
#include <SDL_image.h>

#include <cstdio>
#include <exception>

#include "simulator/core/bitmap_file.h"

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: png2bmp PICTURE.png PICTURE.bmp\n");
        return 2;
    }
    int status = 0;
    try {
        sim::convert_to_bitmap(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "png2bmp: %s\n", error.what());
        status = 1;
    }
    IMG_Quit();
    return status;
}
