#include "simulator/video/picture.h"

#include <algorithm>

#include "simulator/video/detail.h"
#include "simulator/video/painter.h"
#include "simulator/video/scene.h"

namespace sim {
namespace {

void reflect(Image& image, const Look& look)
{
    const int width = image.size.width;
    for (int y = 0; look.mirror && y < image.size.height; ++y) {
        std::reverse(image.row(y), image.row(y) + width);
    }
    for (int y = 0; look.flip && y < image.size.height / 2; ++y) {
        std::swap_ranges(image.row(y), image.row(y) + width, image.row(image.size.height - 1 - y));
    }
}

/// What the lens and the sensor give.
Image draw_view(Size size, const Look& look, double zoom, double seconds)
{
    Image image = draw_scene(size, seconds, zoom);
    sharpen(image, look.sharpness);
    apply_tones(image, look.tones);
    add_noise(image, look.tones.closed ? 0 : look.noise, seconds);
    reflect(image, look);
    return image;
}

/// What lies on the output: the view with the small one in it.
Image arrange_views(Size size, const Look& look, double seconds)
{
    Image image = draw_view(size, look, look.zoom, seconds);
    turn_picture(image, look.mounting);
    if (look.inset) {
        const double zoom = look.inset->panorama ? 1 : look.zoom;
        lay_inset(image, draw_view(inset_size(size, *look.inset), look, zoom, seconds), *look.inset);
    }
    return image;
}

/// Made behind the sensor: no other setting reaches it.
Image draw_pattern(Size size, Pattern pattern)
{
    constexpr Color bars[] = {0xFFC0C0C0U, 0xFFC0C000U, 0xFF00C0C0U, 0xFF00C000U,
                              0xFFC000C0U, 0xFFC00000U, 0xFF0000C0U, 0xFF000000U};
    Image image(size);
    for (int x = 0; x < size.width; ++x) {
        const auto grey = static_cast<std::uint32_t>(x * 256 / size.width);
        const auto bar = static_cast<std::size_t>(x) * std::size(bars) / static_cast<std::size_t>(size.width);
        image.row(0)[x] = pattern == Pattern::ColorBars ? bars[bar] : make_color(255, grey, grey, grey);
    }
    for (int y = 1; y < size.height; ++y) {
        std::copy_n(image.row(0), size.width, image.row(y));
    }
    return image;
}

Color dimmed(Color color, double level)
{
    return premultiply((color & 0xFFFFFFU) | static_cast<Color>(level * 255) << 24);
}

void draw_lights(Image& image, const Look& look)
{
    Painter painter(image, {0, 0}, image.size.width / 1920.0);
    if (look.tally) {
        constexpr double edge = 14;
        const Color color = dimmed(*look.tally, look.tally_level);
        for (const Box& side : {Box{0, 0, 1920, edge}, Box{0, 1080 - edge, 1920, edge}, Box{0, 0, edge, 1080},
                                Box{1920 - edge, 0, edge, 1080}}) {
            painter.box(side, color);
        }
    }
    if (look.lamp) {
        painter.circle({1850, 1010}, 30, 0x1A1C20);
        painter.circle({1850, 1010}, 22, *look.lamp);
        painter.circle({1843, 1002}, 5, 0xFFFFFF);
    }
}

} // namespace

Image draw_picture(Size size, const Look& look, double seconds)
{
    Image image = look.pattern == Pattern::None ? arrange_views(size, look, seconds) : draw_pattern(size, look.pattern);
    // Behind the lens: neither tones nor mirror reach what the camera writes onto its picture.
    draw_time_code(image, seconds);
    draw_lights(image, look);
    return image;
}

} // namespace sim
