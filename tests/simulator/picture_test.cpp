// Canvases over the picture, and the picture itself.
#include <gmock/gmock.h>

#include "simulator/video/layer.h"
#include "simulator/video/picture.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;

/// A picture of one color with a canvas over it, whose base is 1920 by 1080. Pixels of 16 bits lie two in a word.
static Image picture_under(Size size, Color ground, std::vector<std::uint32_t> pixels, std::uint32_t format,
                           SDL_Rect place)
{
    tagOSD_MENU_CANVAS_S canvas{{}, {}, place, {0, 0, place.w, place.h - 1}, format, 0, 0, 0, 0, 0, {}};
    canvas.stMem.pvVirAddr = pixels.data();
    EXPECT_NE(canvas_problem(canvas, SIZE_MAX), nullptr); // larger than its base
    canvas.stBaseRect = {0, 0, 1920, 1080};
    const auto bytes = static_cast<std::size_t>(place.w * place.h * (format == 2 ? 4 : 2));
    EXPECT_NE(canvas_problem(canvas, bytes - 1), nullptr);
    EXPECT_EQ(canvas_problem(canvas, bytes), nullptr);
    Image picture(size);
    std::fill(picture.pixels.begin(), picture.pixels.end(), ground);
    blend_layer(picture, scale_layer(copy_canvas(canvas), size));
    return picture;
}

TEST(Layer, ShowsThreePixelFormats)
{
    const std::tuple<std::uint32_t, std::uint32_t, Color> cases[] = {
        {0, 0x0000, 0xFF646464},                                  // the one transparent value
        {0, 0x7FFF, 0xFFFFFFFF},                                  // color without the alpha bit counts as shown
        {0, 0x8421, 0xFF080808},                                  // the background of the menu, opaque
        {1, 0x0FFF, 0xFF646464},     {1, 0x800F, 0xFF2F2FB7},     // alpha 136: 100 * 119 / 255 = 47, and 136 of blue
        {2, 0x00FFFFFF, 0xFF646464}, {2, 0x800A0A0A, 0xFF373737}, // 10 * 128 / 255 = 5, 100 * 127 / 255 = 50
    };
    for (const auto& [format, pixel, seen] : cases) {
        EXPECT_EQ(picture_under({1920, 1080}, 0xFF646464, {pixel}, format, {7, 5, 1, 1}).row(5)[7], seen) << pixel;
    }
}

TEST(Layer, LiesScaledOnEachChannelAndIsCutAtTheEdges)
{
    const std::vector<std::uint32_t> red(96 * 54, 0xFFFF0000);
    const std::tuple<Size, SDL_Rect, SDL_Rect> cases[] = {{{3840, 2160}, {960, 540, 96, 54}, {1920, 1080, 192, 108}},
                                                          {{640, 360}, {960, 540, 96, 54}, {320, 180, 32, 18}},
                                                          {{1280, 720}, {-48, 1062, 96, 54}, {0, 708, 32, 12}},
                                                          {{1920, 1080}, {1900, -53, 96, 54}, {1900, 0, 20, 1}},
                                                          {{1920, 1080}, {5000, -900, 96, 54}, {0, 0, 0, 0}}};
    for (const auto& [size, place, shown] : cases) {
        Image expected(size);
        for (int y = shown.y; y < shown.y + shown.h; ++y) {
            std::fill_n(expected.row(y) + shown.x, shown.w, 0xFFFF0000U);
        }
        EXPECT_TRUE(picture_under(size, 0, red, 2, place).pixels == expected.pixels) << size.width << " " << place.x;
    }
    // Three by three pixels, three of them white and two black, become one: white 3 * 255 / 9, the rest is clear.
    const std::vector<std::uint32_t> nine = {~0U, ~0U, ~0U, 0xFF000000, 0, 0, 0, 0, 0xFF000000};
    EXPECT_EQ(picture_under({640, 360}, 0xFF000000, nine, 2, {0, 0, 3, 3}).pixels[0], 0xFF555555U);
}

TEST(Picture, ShowsTheSettings)
{
    Look look;
    look.mirror = look.flip = true;
    EXPECT_EQ(draw_picture({640, 360}, look, 0).row(200)[100], draw_picture({640, 360}, Look(), 0).row(159)[539]);
    look = Look();
    look.zoom = 2;
    look.tally = 0xE8202A;
    const Image near = draw_picture({640, 360}, look, 0);
    EXPECT_EQ(near.row(300)[150], draw_picture({1280, 720}, Look(), 0).row(480)[470]);
    EXPECT_EQ(near.row(2)[2], 0xFFE8202AU);

    look = Look();
    look.mounting.angle = 180;
    EXPECT_EQ(draw_picture({640, 360}, look, 0).row(200)[100], draw_picture({640, 360}, Look(), 0).row(159)[539]);
    look.mounting = {90, false}; // 202 pixels wide, 219 beside it
    look.inset = Inset{true, false, true, 0.25};
    const Image turned = draw_picture({640, 360}, look, 0);
    EXPECT_EQ(turned.row(20)[218], 0xFF000000U);
    EXPECT_EQ(turned.row(20)[420], draw_picture({640, 360}, Look(), 0).row(1)[36]); // the sky lies at the right
    EXPECT_EQ(turned.row(232)[19], draw_picture({160, 90}, Look(), 0).row(0)[0]);

    const TempFolder folder;
    SettingsStore store(folder.path("settings.db"));
    const SettingId id{"", "TallyLevel"};
    const std::tuple<int, int, const char*, double> levels[] = {{0, 5, "4", 0.8}, {-5, 5, "-3", 0}, {-9, 0, "0", 0}};
    for (const auto& [min, max, value, level] : levels) {
        const std::map<SettingId, Setting> one = {{id, {id, SettingKind::Integer, {}, min, max, 1, "", value}}};
        EXPECT_DOUBLE_EQ(look_of(Settings(one, store)).tally_level, level) << value;
    }
}
