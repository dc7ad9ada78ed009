// Canvases over the picture, and the picture itself.
#include <gmock/gmock.h>

#include <numeric>
#include <sstream>

#include "simulator/video/channels.h"
#include "simulator/video/encode.h"
#include "simulator/video/picture.h"
#include "simulator/video/snapshot.h"
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
    const Color corner = draw_picture({640, 360}, Look(), 0).row(159)[539];
    Look look;
    look.mirror = look.flip = true;
    EXPECT_EQ(draw_picture({640, 360}, look, 0).row(200)[100], corner);
    look = Look();
    look.mounting.angle = 180;
    EXPECT_EQ(draw_picture({640, 360}, look, 0).row(200)[100], corner);
    look.mounting = {90, false}; // 202 pixels wide, 219 beside it
    look.inset = Inset{true, false, true, 0.25};
    const Image turned = draw_picture({640, 360}, look, 0);
    EXPECT_EQ(turned.row(20)[218], 0xFF000000U);
    EXPECT_EQ(turned.row(20)[420], draw_picture({640, 360}, Look(), 0).row(1)[36]); // the sky lies at the right
    EXPECT_EQ(turned.row(232)[19], draw_picture({160, 90}, Look(), 0).row(0)[0]);
    look = Look();
    look.zoom = 2;
    look.tally = 0xE8202A;
    const Image near = draw_picture({640, 360}, look, 0);
    EXPECT_EQ(near.row(300)[150], draw_picture({1280, 720}, Look(), 0).row(480)[470]);
    EXPECT_EQ(near.row(2)[2], 0xFFE8202AU);
    look = Look();
    look.pattern = Pattern::ColorBars;
    look.tones.closed = look.mirror = true; // of the scene alone
    const Image bars = draw_picture({800, 450}, look, 0);
    look.pattern = Pattern::GrayRamp;
    const Image ramp = draw_picture({256, 144}, look, 0);
    EXPECT_THAT((std::vector{bars.row(440)[99], bars.row(0)[100], ramp.row(100)[0], ramp.row(143)[255]}),
                testing::ElementsAre(0xFFC0C0C0U, 0xFFC0C000U, 0xFF000000U, 0xFFFFFFFFU));

    /// How unlike its neighbor each pixel of a part is: the grass is all of one color, the other part full of edges.
    const auto unlike = [](double noise, double sharpness, SDL_Rect part) {
        Look detail;
        detail.noise = noise;
        detail.sharpness = sharpness;
        const Image image = draw_picture({480, 270}, detail, 0);
        int sum = 0;
        for (int i = 0; i < part.w * part.h; ++i) {
            const Color* at = image.row(part.y + i / part.w) + part.x + i % part.w;
            sum += std::abs(static_cast<int>(component(at[0], 8)) - static_cast<int>(component(at[1], 8)));
        }
        return sum;
    };
    const SDL_Rect grass{100, 258, 100, 9};
    const SDL_Rect edges{50, 150, 100, 50};
    EXPECT_EQ(unlike(0, 0, grass), 0);
    EXPECT_GT(unlike(12, 0, grass), 2 * unlike(3, 0, grass));
    EXPECT_GT(unlike(0, 1, edges), unlike(0, 0, edges));
    EXPECT_LT(unlike(0, -1, edges), unlike(0, 0, edges));
}

/// The look of the camera's own settings, of which some have other values: "Key=value Key=value".
static Look look_with(const std::string& changes)
{
    const TempFolder folder;
    SettingsStore store(folder.path("settings.db"));
    static const Definitions definitions = load_definitions(OSD_RESOURCE_DIR "/settings.json");
    Settings settings(definitions.settings, store);
    std::istringstream words(changes);
    for (std::string word; words >> word;) {
        const std::size_t equals = word.find('=');
        settings.set(settings.find_key(word.substr(0, equals))->id, word.substr(equals + 1));
    }
    return look_of(settings);
}

/// What is to be seen with a look, beside that of the default settings.
static std::string words_for(const Look& look)
{
    const Tones& tones = look.tones;
    const auto compare = [](double difference, const char* less, const char* more) {
        return std::string(difference > 0.1 ? more : difference < -0.1 ? less : "");
    };
    return (tones.closed ? "black " : compare(tones.stops + tones.shadow_light, "darker ", "lighter ")) +
           compare(tones.red_gain - tones.blue_gain, "colder ", "warmer ") + compare(look.noise, "", "grainy ") +
           compare(look.sharpness, "softer ", "harder ");
}

TEST(Picture, FollowsTheModesOfExposureColorAndDetail)
{
    const std::pair<const char*, const char*> cases[] = {
        {"ExposureMode=Manual Backlight=On", ""},
        {"Shutter=1/1000 Iris=IrisClose Gain=30 BrightLevel=17 ExpCompLevel=7 GainLimit=0", ""}, // in other modes
        {"ExposureMode=Manual Shutter=1/250", "darker "},
        {"ExposureMode=Manual Iris=F1.8 ExpComp=On ExpCompLevel=-7", "lighter "},
        {"ExposureMode=Manual Gain=12", "lighter grainy "},
        {"ExposureMode=Manual Iris=F5.6 Gain=12", "grainy "},
        {"ExposureMode=IrisPri Iris=IrisClose NoiseReduction=Off", "black grainy "},
        {"ExposureMode=IrisPri Iris=F8.0 GainLimit=0", "darker "},
        {"ExposureMode=ShutterPri Shutter=1/1000", "darker grainy "},
        {"ExposureMode=ShutterPri Shutter=1/30", "lighter "},
        {"ExposureMode=BrightPri BrightLevel=0", "darker "},
        {"ExpComp=On ExpCompLevel=-5", "darker "},
        {"Backlight=On", "lighter "},
        {"Wdr=Low", "lighter "},
        {"NoiseReduction=Manual Nr2d=1 Nr3d=1", "grainy "},
        {"WbMode=Outdoor", "warmer "},
        {"WbMode=OnePush", "warmer "},
        {"WbMode=ColorTempMode", ""},
        {"WbMode=ColorTempMode ColorTemp=7100", "warmer "},
        {"WbMode=Manual RedGain=60", "colder "},
        {"WbMode=Manual BlueGain=60", "warmer "},
        {"ColorTemp=2400 RedGain=255", ""}, // in other modes
        {"Sharpness=15", "harder "},
        {"Sharpness=0", "softer "},
    };
    for (const auto& [settings, words] : cases) {
        EXPECT_EQ(words_for(look_with(settings)), words) << settings;
    }
    // The gain limit bounds both what the camera makes up for and its noise; noise reduction takes grain away.
    const Look dark = look_with("ExposureMode=ShutterPri Shutter=1/2000 GainLimit=1");
    const Look bright = look_with("ExposureMode=ShutterPri Shutter=1/2000 GainLimit=15");
    EXPECT_LT(dark.tones.stops + 0.5, bright.tones.stops);
    EXPECT_LT(dark.noise * 2, bright.noise);
    EXPECT_LT(look_with("NoiseReduction=Manual Nr2d=5 Nr3d=8").noise * 3, look_with("NoiseReduction=Manual").noise);
}

TEST(Picture, TonesMoveEachColor)
{
    const std::tuple<Tones, Color, Color> cases[] = {
        {{}, 0xFFC02010, 0xFFC02010},
        {{0, false, 0, 1, 1, 0, 0, -1, 0}, 0xFFC02010, 0xFF4E4E4E}, // 192, 32, 16 weighed: 78.3
        {{0, false, 0, 1, 1, 0, 0, 1, 0}, 0xFFC02010, 0xFFFF0000},
        {{0, false, 0, 1, 1, 0, 0, 0, 60}, 0xFF808080, 0xFF808080},
        {{0, false, 0, 1, 1, 0, 0, 0, 120}, 0xFFC02010, 0xFF10C020}, // red becomes green, not blue
        {{2.2, false, 0, 1, 1, 0, 0, 0, 0}, 0xFF104080, 0xFF2080FF}, // twice as light to the eye
        {{0, false, 0, 1, 1, 0.5, 0, 0, 0}, 0xFF104080, 0xFF4777B7}, // 55 more
        {{0, true, 1, 1, 1, 0, 0, 0, 0}, 0xFFC02010, 0xFF000000}};
    for (const auto& [tones, before, after] : cases) {
        Image image({1, 1});
        image.pixels[0] = before;
        apply_tones(image, tones);
        EXPECT_EQ(image.pixels[0], after) << std::hex << before << " to " << image.pixels[0];
    }
}

TEST(Encode, GivesBackWhatItTook)
{
    const TempFolder folder;
    Image image({40, 30});
    for (std::uint32_t i = 0; i < 1200; ++i) {
        image.pixels[i] = make_color(i % 40 * 6, 200 - i % 40, i % 40 * 5, i / 8);
    }
    EXPECT_EQ(load_png(folder.write("a.png", encode_png(image, true))).pixels, image.pixels);
    const std::string file = encode_jpeg(image, 95);
    EXPECT_LT(encode_jpeg(image, 10).size(), file.size());
    const Image read = load_png(folder.write("c.jpg", file));
    ASSERT_TRUE(read.size == image.size);
    for (std::size_t i = 0; i < image.pixels.size(); ++i) {
        for (const int shift : {16, 8, 0}) {
            ASSERT_NEAR(component(read.pixels[i], shift), component(image.pixels[i], shift), 12) << i;
        }
    }
    EXPECT_THROW(encode_jpeg(Image({65501, 1}), 80), std::runtime_error);
    EXPECT_THROW(encode_png(Image(), true), std::runtime_error);
}

TEST(Channels, TellTheMenusCanvasAndEachChange)
{
    using Clock = std::chrono::steady_clock;
    Channels channels({1920, 1080});
    auto layer = std::make_shared<Layer>();
    layer->place = {0, 0, 2, 1};
    layer->base = {0, 0, 1920, 1080};
    layer->pixels = Image({2, 1});
    layer->pixels.pixels = {premultiply(0x80FF8000), premultiply(0x00FFFFFF)};
    const int menu = 0;
    const int prompt = 0;
    channels.show(0, &prompt, layer);
    EXPECT_FALSE(channels.lowest_canvas(0));
    channels.show(0, &menu, layer, true);
    EXPECT_FALSE(channels.lowest_canvas(1));
    EXPECT_EQ(channels.lowest_canvas(0).value().pixels, (std::vector<Color>{0x80FF8000, 0}));
    channels.hide(0, &menu);
    EXPECT_FALSE(channels.lowest_canvas(0));
    channels.resize_main({3840, 2160});
    EXPECT_EQ(channels.changes(), 4U);
    Image picture(channels.size(0));
    for (const Size size : {Size{1920, 1080}, Size{3840, 2160}, Size{3840, 2160}}) {
        picture = Image(size);
        channels.lay_canvases_over(0, picture); // what was scaled for another size isn't used
    }
    EXPECT_THAT((std::vector{picture.row(1)[1], picture.row(1)[2], picture.row(2)[1]}),
                testing::ElementsAre(0xFF804000U, 0xFF000000U, 0U));

    EXPECT_FALSE(channels.wait_for_change(4, Clock::now()));
    EXPECT_TRUE(channels.wait_for_change(3, Clock::now() + std::chrono::hours(1)));
}
