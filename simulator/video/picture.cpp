#include "simulator/video/picture.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <random>
#include <tuple>

#include "simulator/video/painter.h"
#include "simulator/video/scene.h"

namespace sim {
namespace {

constexpr Color black = 0;
constexpr Color white = 0xFFFFFF;

/// From the coordinates of the scene to a picture on which nothing is turned or enlarged.
cairo_matrix_t plain_lens(Size size)
{
    cairo_matrix_t lens;
    cairo_matrix_init_scale(&lens, size.width / scene_width, size.height / scene_height);
    return lens;
}

View view_of(Size size, const Look& look, const Mounting& mounting, double zoom)
{
    const double scale = mounting.scale * zoom;
    const double x = look.mirror ? -scale : scale;
    const double y = look.flip ? -scale : scale;
    const cairo_matrix_t turn = {mounting.cos * x, mounting.sin * x, -mounting.sin * y,
                                 mounting.cos * y, scene_width / 2,  scene_height / 2};
    const cairo_matrix_t plain = plain_lens(size);
    View view{size, {}, look.tones};
    cairo_matrix_multiply(&view.lens, &turn, &plain);
    cairo_matrix_translate(&view.lens, -scene_width / 2, -scene_height / 2);
    return view;
}

/// Moves each component away from that of a picture with soft edges, or towards it.
void sharpen(Image& image, const Image& soft, double sharpness)
{
    constexpr double hardest = 1.5;
    const int strength = static_cast<int>(std::lround(64 * sharpness * (sharpness > 0 ? hardest : 1)));
    auto* bytes = reinterpret_cast<std::uint8_t*>(image.pixels.data());
    const auto* others = reinterpret_cast<const std::uint8_t*>(soft.pixels.data());
    const std::size_t count = image.pixels.size() * sizeof(Color);
    for (std::size_t i = 0; i < count; ++i) {
        const int moved = bytes[i] + ((bytes[i] - others[i]) * strength >> 6);
        bytes[i] = static_cast<std::uint8_t>(std::clamp(moved, 0, 255));
    }
}

Image make_grain()
{
    std::mt19937 random(1); // any start does, but always the same
    Image grain({256, 256});
    for (Color& pixel : grain.pixels) {
        const auto alpha = static_cast<std::uint32_t>(random() % 128);
        pixel = random() % 2 == 0 ? make_color(alpha, 0, 0, 0) : make_color(alpha, alpha, alpha, alpha);
    }
    return grain;
}

/// Dark and bright grains. The same moment gives the same grain.
void add_grain(Image& image, double noise, double seconds)
{
    static const Image grain = make_grain();
    constexpr double full_noise = 37; // by which the grains let a middle grey deviate
    std::mt19937 random(static_cast<std::uint32_t>(static_cast<std::int64_t>(seconds * 1000)));
    const Pen pen = pen_on(image);
    const auto shift = [&] { return static_cast<double>(random() % 256); };
    cairo_set_source_surface(pen.get(), surface_of(grain).get(), shift(), shift());
    cairo_pattern_set_extend(cairo_get_source(pen.get()), CAIRO_EXTEND_REPEAT);
    cairo_paint_with_alpha(pen.get(), noise / full_noise);
}

/// What the lens and the sensor give.
Image draw_view(Size size, const Look& look, const Mounting& mounting, double zoom, double seconds)
{
    constexpr Size soft_size{480, 270};
    Image image = draw_scene(view_of(size, look, mounting, zoom), seconds, look.clouds);
    if (look.sharpness != 0) {
        const Image small = draw_scene(view_of(soft_size, look, mounting, zoom), seconds, look.clouds);
        Image soft(size);
        lay_over(soft, small, {0, 0, size.width, size.height});
        sharpen(image, soft, look.sharpness);
    }
    if (look.noise > 0) {
        add_grain(image, look.noise, seconds);
    }
    return image;
}

/// Left and right of an upright scene that is seen whole.
void draw_bars(Image& image)
{
    constexpr double bar = (scene_width - scene_height * scene_height / scene_width) / 2;
    Painter painter(image, plain_lens(image.size));
    painter.box(0, 0, bar, scene_height, black);
    painter.box(scene_width - bar, 0, bar, scene_height, black);
}

/// Lays a small picture with a white edge near its corner of the large one, where it leaves the time code and the lamp
/// free.
void lay_inset(Image& picture, const Look& look, double seconds)
{
    const Inset& inset = *look.inset;
    const auto [width, height] = picture.size;
    const auto part = [](int length, double share) { return static_cast<int>(length * share); };
    const auto [side, edge, border] = std::tuple(part(width, 0.03), part(width, 0.06), part(width, 0.002));
    const Size size{part(width, inset.width), part(height, inset.width)};
    const int left = inset.right ? width - side - size.width : side;
    const int top = inset.bottom ? height - edge - size.height : edge;
    const Image small = draw_view(size, look, {}, inset.panorama ? 1 : look.zoom, seconds);
    Painter(picture, plain_lens({1920, 1080}))
        .box(left - border, top - border, size.width + 2 * border, size.height + 2 * border, white);
    lay_over(picture, small, {left, top, size.width, size.height});
}

/// What lies on the output: the view with the small one in it.
Image draw_views(Size size, const Look& look, double seconds)
{
    Image image = draw_view(size, look, look.mounting, look.zoom, seconds);
    if (look.mounting.scale < 1) {
        draw_bars(image);
    }
    if (look.inset) {
        lay_inset(image, look, seconds);
    }
    return image;
}

/// Made behind the sensor: no other setting reaches it.
Image draw_pattern(Size size, Pattern pattern)
{
    constexpr Color bars[] = {0xC0C0C0, 0xC0C000, 0x00C0C0, 0x00C000, 0xC000C0, 0xC00000, 0x0000C0, black};
    const bool colored = pattern == Pattern::ColorBars;
    const auto count = colored ? std::size(bars) : 256;
    const double width = scene_width / static_cast<double>(count);
    Image image(size);
    Painter painter(image, plain_lens(size));
    for (std::uint32_t i = 0; i < count; ++i) {
        painter.box(i * width, 0, scene_width, scene_height, colored ? bars[i] : make_color(0, i, i, i));
    }
    return image;
}

void draw_lights(Painter& painter, const Look& look)
{
    if (look.tally) {
        constexpr double edge = 14;
        const Color color = *look.tally;
        painter.box(0, 0, scene_width, edge, color);
        painter.box(0, scene_height - edge, scene_width, edge, color);
        painter.box(0, 0, edge, scene_height, color);
        painter.box(scene_width - edge, 0, edge, scene_height, color);
    }
    if (look.lamp) {
        painter.circle({1850, 1010}, 30, 0x1A1C20);
        painter.circle({1850, 1010}, 22, *look.lamp);
        painter.circle({1843, 1002}, 5, white);
    }
}

/// The digits 0 to 9 and the colon, 3 by 5 dots each, rows from the top, the left dot of the first in the highest bit.
constexpr unsigned glyphs[] = {0x7B6F, 0x2C97, 0x73E7, 0x73CF, 0x5BC9, 0x79CF, 0x79EF, 0x7292, 0x7BEF, 0x7BCF, 0x0410};

void draw_glyph(Painter& painter, unsigned glyph, double left)
{
    constexpr double top = 42;
    constexpr double dot = 5;
    for (int i = 0; i < 15; ++i) {
        const int row = i / 3;
        if ((glyph >> (14 - i) & 1U) != 0) {
            painter.box(left + i % 3 * dot, top + row * dot, dot, dot, 0xF2F2F2);
        }
    }
}

/// Hours, minutes, seconds and hundredths in the upper right corner.
void draw_time_code(Painter& painter, double seconds)
{
    const auto hundredths = static_cast<long long>(std::max(0.0, seconds) * 100);
    const auto part = [hundredths](int unit, int count) { return static_cast<int>(hundredths / unit % count); };
    char text[48] = "";
    (void)std::snprintf(text, sizeof text, "%02d:%02d:%02d:%02d", part(360000, 100), part(6000, 60), part(100, 60),
                        part(1, 100));
    painter.box(1650, 30, 240, 50, 0x202428);
    painter.circle({1672, 55}, 9, 0xE03A30);
    for (int i = 0; text[i] != '\0'; ++i) {
        draw_glyph(painter, glyphs[text[i] - '0'], 1692 + 17.5 * i); // the colon follows the 9
    }
}

} // namespace

Image draw_picture(Size size, const Look& look, double seconds)
{
    Image image = look.pattern == Pattern::None ? draw_views(size, look, seconds) : draw_pattern(size, look.pattern);
    // Behind the lens: neither tones nor mirror reach what the camera writes onto its picture.
    Painter painter(image, plain_lens(size));
    draw_time_code(painter, seconds);
    draw_lights(painter, look);
    return image;
}

} // namespace sim
