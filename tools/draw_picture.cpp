// draw_picture PICTURE BITMAP: makes the bitmap that the menu loads of an SVG. For the build.
#include <fstream>
#include <iostream>

#include "pages/data/picture_file.h"

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: draw_picture PICTURE BITMAP\n";
        return 2;
    }
    try {
        const std::string bitmap = pages::bitmap_of(pages::read_picture(argv[1]));
        if (std::ofstream(argv[2], std::ios::binary) << bitmap << std::flush) {
            return 0;
        }
        std::cerr << argv[2] << ": can't be written\n";
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
