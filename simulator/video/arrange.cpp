#include "simulator/video/arrange.h"

#include <algorithm>

namespace sim {
namespace {

/// Leaves the time code at the top and the lamp at the bottom free; shares of the picture's width.
constexpr double inset_from_side = 0.03;
constexpr double inset_from_edge = 0.06;
constexpr double inset_border = 0.002;

int part(int length, double share) { return static_cast<int>(length * share); }

/// The source pixel that is seen at a place, both counted from the picture's middle.
struct Turn {
    int angle;
    int x_by_x, x_by_y, y_by_x, y_by_y;
};
constexpr Turn turns[] = {{90, 0, 1, -1, 0}, {180, -1, 0, 0, -1}, {270, 0, -1, 1, 0}};

void fill(Image& image, int left, int top, Size size, Color color)
{
    for (int y = top; y < top + size.height; ++y) {
        std::fill_n(image.row(y) + left, size.width, color);
    }
}

} // namespace

void turn_picture(Image& image, const Mounting& mounting)
{
    const auto has_angle = [&mounting](const Turn& turn) { return turn.angle == mounting.angle; };
    const auto turn = std::find_if(std::begin(turns), std::end(turns), has_angle);
    if (turn == std::end(turns)) {
        return;
    }
    const Image source = image;
    const double width = image.size.width;
    const double height = image.size.height;
    const bool upright = turn->x_by_x == 0;
    const double scale = !upright ? 1 : mounting.crop ? width / height : height / width;
    for (int y = 0; y < image.size.height; ++y) {
        for (int x = 0; x < image.size.width; ++x) {
            const double right = (x + 0.5 - width / 2) / scale;
            const double down = (y + 0.5 - height / 2) / scale;
            const double from_x = width / 2 + turn->x_by_x * right + turn->x_by_y * down;
            const double from_y = height / 2 + turn->y_by_x * right + turn->y_by_y * down;
            const bool inside = from_x >= 0 && from_x < width && from_y >= 0 && from_y < height;
            image.row(y)[x] = inside ? source.row(static_cast<int>(from_y))[static_cast<int>(from_x)] : 0xFF000000U;
        }
    }
}

Size inset_size(Size picture, const Inset& inset)
{
    return {part(picture.width, inset.width), part(picture.height, inset.width)};
}

void lay_inset(Image& picture, const Image& small, const Inset& inset)
{
    const int side = part(picture.size.width, inset_from_side);
    const int edge = part(picture.size.width, inset_from_edge);
    const int left = inset.right ? picture.size.width - side - small.size.width : side;
    const int top = inset.bottom ? picture.size.height - edge - small.size.height : edge;
    const int border = part(picture.size.width, inset_border);
    fill(picture, left - border, top - border, {small.size.width + 2 * border, small.size.height + 2 * border},
         0xFFFFFFFFU);
    for (int y = 0; y < small.size.height; ++y) {
        std::copy_n(small.row(y), small.size.width, picture.row(top + y) + left);
    }
}

} // namespace sim
