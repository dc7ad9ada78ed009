// Canvases over the picture, and the picture itself.
#include <gmock/gmock.h>

#include "simulator/video/layer.h"
#include "simulator/video/picture.h"

using namespace sim;

namespace {

/// A picture of one color with a canvas over it, whose base is 1920 by 1080.
template <typename Pixel>
Image picture_under(Size size, Color ground, std::vector<Pixel> pixels, std::uint32_t format, SDL_Rect place)
{
    tagOSD_MENU_CANVAS_S canvas{};
    canvas.stMem.pvVirAddr = pixels.data();
    canvas.stMenuRect = place;
    canvas.stBaseRect = {0, 0, 1920, 1080};
    canvas.enPixFmt = format;
    EXPECT_NE(canvas_problem(canvas, pixels.size() * sizeof(Pixel) - 1), nullptr);
    EXPECT_EQ(canvas_problem(canvas, pixels.size() * sizeof(Pixel)), nullptr);
    Image picture(size);
    std::fill(picture.pixels.begin(), picture.pixels.end(), ground);
    blend_layer(picture, scale_layer(copy_canvas(canvas), size));
    return picture;
}

/// What a pixel of a canvas makes of a grey picture, 100 in all components.
template <typename Pixel>
Color over_grey(std::uint32_t format, Pixel pixel)
{
    return picture_under<Pixel>({1920, 1080}, 0xFF646464, {pixel}, format, {7, 5, 1, 1}).row(5)[7];
}

} // namespace

TEST(Layer, ShowsThreePixelFormats)
{
    EXPECT_EQ(over_grey<std::uint16_t>(0, 0x0000), 0xFF646464U); // the one transparent value
    EXPECT_EQ(over_grey<std::uint16_t>(0, 0x7FFF), 0xFFFFFFFFU); // color without the alpha bit counts as shown
    EXPECT_EQ(over_grey<std::uint16_t>(0, 0x8421), 0xFF080808U); // the background of the menu, opaque
    EXPECT_EQ(over_grey<std::uint16_t>(1, 0x0FFF), 0xFF646464U);
    EXPECT_EQ(over_grey<std::uint16_t>(1, 0xF0A0), 0xFF00AA00U);
    EXPECT_EQ(over_grey<std::uint16_t>(1, 0x800F), 0xFF2F2FB7U); // alpha 136: 100 * 119 / 255 = 47, and 136 of blue
    EXPECT_EQ(over_grey<std::uint32_t>(2, 0x00FFFFFF), 0xFF646464U);
    EXPECT_EQ(over_grey<std::uint32_t>(2, 0x800A0A0A), 0xFF373737U); // 10 * 128 / 255 = 5, 100 * 127 / 255 = 50
}

TEST(Layer, LiesScaledOnEachChannel)
{
    struct Case {
        Size size;
        int left, top, right, bottom;
    };
    for (const Case& at : {Case{{3840, 2160}, 1920, 1080, 2112, 1188}, Case{{1280, 720}, 640, 360, 704, 396},
                           Case{{640, 360}, 320, 180, 352, 198}}) {
        const std::vector<std::uint32_t> red(96 * 54, 0xFFFF0000);
        const Image picture = picture_under(at.size, 0, red, 2, {960, 540, 96, 54});
        EXPECT_EQ(picture.row(at.top)[at.left], 0xFFFF0000U) << at.size.width;
        EXPECT_EQ(picture.row(at.bottom - 1)[at.right - 1], 0xFFFF0000U) << at.size.width;
        EXPECT_EQ(picture.row(at.top - 1)[at.left], 0U) << at.size.width;
        EXPECT_EQ(picture.row(at.bottom)[at.right - 1], 0U) << at.size.width;
        EXPECT_EQ(picture.row(at.top)[at.right], 0U) << at.size.width;
    }
    // Three by three pixels become one: red (2 * 255 + 3 * 255) / 9, green and blue 2 * 255 / 9, the rest is clear.
    const std::vector<std::uint32_t> nine = {0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0,         0,
                                             0,          0xFFFF0000, 0xFFFF0000, 0xFFFF0000};
    EXPECT_EQ(picture_under({640, 360}, 0xFF000000, nine, 2, {0, 0, 3, 3}).pixels[0], 0xFF8E3939U);
}

TEST(Layer, IsCutAtTheEdges)
{
    const std::vector<std::uint32_t> green(16, 0xFF00FF00);
    struct Case {
        SDL_Rect place;
        int shown;
    };
    for (const Case& at : {Case{{-2, -2, 4, 4}, 4}, Case{{1917, 1078, 4, 4}, 6}, Case{{5000, -900, 4, 4}, 0}}) {
        const Image picture = picture_under({1920, 1080}, 0, green, 2, at.place);
        EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), 0xFF00FF00U), at.shown);
    }
}

TEST(Picture, ShowsTheSettings)
{
    const Size size{640, 360};
    const Image plain = draw_picture(size, Look(), 0);
    Look look;
    look.mirror = look.flip = true;
    EXPECT_EQ(draw_picture(size, look, 0).row(200)[100], plain.row(159)[539]);
    look = Look();
    look.saturation = -1;
    const Color grey = draw_picture(size, look, 0).row(150)[100];
    EXPECT_EQ(component(grey, 16), component(grey, 0));
    look.brightness = 1;
    EXPECT_GT(component(draw_picture(size, look, 0).row(150)[100], 8), component(grey, 8));
    look = Look();
    look.zoom = 2;
    EXPECT_EQ(draw_picture(size, look, 0).row(300)[150], draw_picture({1280, 720}, Look(), 0).row(480)[470]);
    look.tally = 0xE8202A;
    EXPECT_EQ(draw_picture(size, look, 0).row(2)[2], 0xFFE8202AU);
}
