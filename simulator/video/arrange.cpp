#include "simulator/video/arrange.h"

#include <algorithm>

namespace sim {
namespace {

/// Leaves the time code at the top and the lamp at the bottom free; shares of the picture's width.
constexpr double inset_from_side = 0.03;
constexpr double inset_from_edge = 0.06;
constexpr double inset_border = 0.002;
constexpr Color black = 0xFF000000U;

int part(int length, double share) { return static_cast<int>(length * share); }

/// Where the pixels of an upright picture come from: each column of the picture shows a row of the source, each row a
/// column. -1 is outside the source.
struct Upright {
    std::vector<int> row_by_x;
    std::vector<int> column_by_y;
};

/// The place on the source for each place on the picture, counted from the middles of both.
std::vector<int> source_places(int length, int source_length, double step)
{
    std::vector<int> places;
    for (int i = 0; i < length; ++i) {
        const double place = source_length / 2.0 + (i + 0.5 - length / 2.0) * step;
        places.push_back(place >= 0 && place < source_length ? static_cast<int>(place) : -1);
    }
    return places;
}

Upright upright_places(Size size, const Mounting& mounting)
{
    const double width = size.width;
    const double height = size.height;
    const double step = mounting.crop ? height / width : width / height;
    const double clockwise = mounting.angle == 90 ? 1 : -1;
    return {source_places(size.width, size.height, -clockwise * step),
            source_places(size.height, size.width, clockwise * step)};
}

/// Rows become columns, block by block: the rows that a block touches stay in the cache. Only the columns between the
/// first and the last that are wanted.
void transpose(const Image& image, int first, int last, Image& result)
{
    constexpr int block = 16;
    const auto [width, height] = image.size;
    result.size = {height, width};
    result.pixels.resize(image.pixels.size());
    for (int top = 0; top < height; top += block) {
        for (int left = first; left <= last; left += block) {
            for (int y = top; y < std::min(top + block, height); ++y) {
                const Color* source = image.row(y);
                Color* target = result.pixels.data() + y;
                for (int x = left; x < std::min(left + block, last + 1); ++x) {
                    target[static_cast<std::ptrdiff_t>(x) * height] = source[x];
                }
            }
        }
    }
}

void turn_upright(Image& image, const Upright& places)
{
    // Kept for the next picture: to get fresh memory from the system for each takes longer than all the rest.
    thread_local Image columns;
    const auto [first, last] = std::minmax_element(places.column_by_y.begin(), places.column_by_y.end());
    transpose(image, std::max(0, *first), *last, columns);
    const std::size_t width = places.row_by_x.size();
    for (std::size_t y = 0; y < places.column_by_y.size(); ++y) {
        const int column = places.column_by_y[y];
        Color* row = image.row(static_cast<int>(y));
        if (y > 0 && column == places.column_by_y[y - 1]) {
            std::copy_n(row - width, width, row);
        } else if (column < 0) {
            std::fill_n(row, width, black);
        } else {
            const Color* source = columns.row(column);
            std::transform(places.row_by_x.begin(), places.row_by_x.end(), row,
                           [source](int from) { return from < 0 ? black : source[from]; });
        }
    }
}

void fill(Image& image, int left, int top, Size size, Color color)
{
    for (int y = top; y < top + size.height; ++y) {
        std::fill_n(image.row(y) + left, size.width, color);
    }
}

} // namespace

void turn_picture(Image& image, const Mounting& mounting)
{
    if (mounting.angle == 180) {
        std::reverse(image.pixels.begin(), image.pixels.end());
    } else if (mounting.angle != 0) {
        turn_upright(image, upright_places(image.size, mounting));
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
