// Canvases over the picture, and the picture itself.
#include <gmock/gmock.h>

#include <sstream>

#include "simulator/video/layer.h"
#include "simulator/video/picture.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;

/// The preview while the scene stands still, with other values of some settings: "Key=value Key=value".
static Image picture_with(const std::string& changes)
{
    static const TempFolder folder;
    static const Definitions definitions = load_definitions(OSD_RESOURCE_DIR "/settings.json");
    static SettingsStore store(folder.path("settings.db"));
    store.clear();
    Settings settings(definitions.settings, store);
    Settings::Values values;
    std::istringstream words(changes);
    for (std::string word; words >> word;) {
        const std::size_t equals = word.find('=');
        values[settings.find_key(word.substr(0, equals))->id] = word.substr(equals + 1);
    }
    settings.set_all(values);
    return draw_picture({640, 360}, look_of(settings), 0);
}

struct Parts {
    explicit Parts(Color color) : red(color >> 16 & 255), green(color >> 8 & 255), blue(color & 255) {}
    double light() const { return red + green + blue; }
    double red, green, blue;
};

/// What a person sees of a part of the picture, as a mean over its pixels and the ones beside them.
struct Measure {
    SDL_Rect part;
    double (*of)(Parts at, Parts next);

    double operator()(const Image& image) const
    {
        double sum = 0;
        for (int i = 0; i < part.w * part.h; ++i) {
            const Color* at = image.row(part.y + i / part.w) + part.x + i % part.w;
            sum += of(Parts(at[0]), Parts(at[1]));
        }
        return sum;
    }
};

TEST(Picture, FollowsTheSettings)
{
    constexpr SDL_Rect scene{0, 100, 600, 200};
    const auto difference = [](Parts at, Parts next) { return std::abs(at.light() - next.light()); };
    const std::map<std::string, Measure> measures = {
        {"light", {scene, [](Parts at, Parts) { return at.light(); }}},
        {"warmth", {scene, [](Parts at, Parts) { return at.red / (1 + at.blue); }}},
        {"color", {scene, [](Parts at, Parts) { return std::abs(at.red - at.blue); }}},
        {"contrast", {scene, [](Parts at, Parts) { return std::abs(at.light() - 384); }}},
        {"edges", {{70, 170, 420, 90}, difference}},
        {"grain", {{100, 320, 200, 10}, difference}}, // where the road is all of one color
    };
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"", "Brightness=60", "+light"},
        {"", "Brightness=40", "-light"},
        {"", "Contrast=60", "+contrast"},
        {"", "Contrast=40", "-contrast"},
        {"", "Saturation=60", "+color"},
        {"", "Saturation=40", "-color"},
        {"", "Sharpness=15", "+edges"},
        {"", "Sharpness=0", "-edges"},
        {"", "NoiseReduction=Off", "+grain"},
        {"NoiseReduction=Off", "NoiseReduction=Manual", "-grain"},
        {"NoiseReduction=Manual", "Nr2d=5", "-grain"},
        {"NoiseReduction=Manual", "Nr3d=8", "-grain"},
        {"ExpComp=On", "ExpCompLevel=-5", "-light"},
        {"", "Backlight=On", "+light"},
        {"Wdr=Low", "Wdr=High", "+light"},
        {"ExposureMode=Manual", "Shutter=1/250", "-light"},
        {"ExposureMode=Manual", "Iris=F1.8", "+light"},
        {"ExposureMode=Manual", "Gain=12", "+light +grain"},
        {"ExposureMode=IrisPri", "Iris=F8.0", "-light +grain"},
        {"ExposureMode=ShutterPri", "Shutter=1/1000", "-light +grain"},
        {"ExposureMode=ShutterPri Shutter=1/2000 GainLimit=1", "GainLimit=15", "+light +grain"},
        {"ExposureMode=BrightPri", "BrightLevel=0", "-light"},
        {"", "WbMode=Indoor", "-warmth"},
        {"", "WbMode=Outdoor", "+warmth"},
        {"", "WbMode=OnePush", "+warmth"},
        {"WbMode=ColorTempMode", "ColorTemp=7100", "+warmth"},
        {"WbMode=Manual", "RedGain=60", "-warmth"},
        {"WbMode=Manual", "BlueGain=60", "+warmth"},
        // Only what the page shows for a mode has an effect.
        {"", "Shutter=1/1000 Iris=IrisClose Gain=30 BrightLevel=17 ExpCompLevel=7 GainLimit=0 Nr2d=5 Nr3d=8", ""},
        {"", "ColorTemp=2400 RedGain=255 BlueGain=0 RotateFit=FitBars PipPos=TopLeft TallyLevel=1", ""},
        {"ExposureMode=Manual", "Backlight=On ExpComp=On ExpCompLevel=-7 BrightLevel=17", ""},
        {"", "ExposureMode=Manual WbMode=ColorTempMode", ""},
    };
    for (const auto& [before, change, seen] : cases) {
        const Image old = picture_with(before);
        const Image now = picture_with(before + (" " + std::string(change)));
        EXPECT_EQ(now.pixels == old.pixels, *seen == '\0') << change;
        std::istringstream all(seen);
        for (std::string word; all >> word;) {
            const Measure& measure = measures.at(word.substr(1));
            const bool more = word[0] == '+';
            EXPECT_GT(measure(more ? now : old), 1.02 * measure(more ? old : now)) << change << ": " << word;
        }
    }
}

TEST(Picture, ShowsEachThingWhereItBelongs)
{
    constexpr Color sun = 0xFFF0C0;
    const std::tuple<const char*, int, int, Color> cases[] = {
        {"Mirror=On", 166, 50, sun},
        {"Flip=On", 473, 309, sun},
        {"RotateAngle=180deg", 166, 309, sun},
        {"RotateAngle=90deg RotateFit=FitBars", 393, 266, sun},
        {"RotateAngle=90deg RotateFit=FitBars", 100, 180, 0},
        {"Zoom=200", 480, 300, 0xD9CCB4}, // the wall of a house
        {"ExposureMode=IrisPri Iris=IrisClose NoiseReduction=Off", 473, 50, 0},
        {"Hue=10", 410, 315, 0x909800}, // red, turned by 60 degrees
        {"TestPattern=ColorBars Mirror=On", 100, 100, 0xC0C000},
        {"TestPattern=GrayRamp Brightness=100", 320, 100, 0x808080},
        {"PipMode=On Zoom=300", 588, 260, sun},
        {"PipMode=On PipPos=TopLeft PipSize=SizeLarge", 175, 54, sun},
        {"PipMode=On Zoom=200 PipSource=PipMain", 503, 253, 0x7FB0E0}, // the sky near the mountains
        {"Tally=Red TallyLevel=1 Mirror=On", 2, 50, 0x2E0608},
        {"Tally=Green TallyLevel=5", 320, 358, 0x1FC24B},
        {"LedCustomColor=FF8000", 617, 340, 0xFF8000},
        {"LedMode=LedFollow Tally=Red", 617, 340, 0xE8202A},
        {"LedMode=Off", 617, 340, 0x6E9B47}, // grass
    };
    for (const auto& [settings, x, y, expected] : cases) {
        const Color seen = picture_with(settings).row(y)[x];
        for (const int shift : {16, 8, 0}) {
            EXPECT_NEAR(component(seen, shift), component(expected, shift), 24) << settings << std::hex << seen;
        }
    }
}

TEST(Picture, KeepsCloudsOutOfTheMenusHalfUnlessToldOtherwise)
{
    Look look;
    const auto clouds_in_left_half = [&look](double seconds) {
        const Image image = draw_picture({640, 360}, look, seconds);
        for (int y = 0; y < 120; ++y) { // above the hills
            const auto cloud = [](Color color) { return component(color, 16) > 0xC8; };
            if (std::any_of(image.row(y), image.row(y) + 320, cloud)) {
                return true;
            }
        }
        return false;
    };
    for (const double seconds : {0.0, 14.0, 42.0, 95.0, 140.0}) {
        EXPECT_FALSE(clouds_in_left_half(seconds)) << seconds;
    }
    look.clouds = true;
    EXPECT_TRUE(clouds_in_left_half(95));
}

/// A picture of one color under a canvas whose base is 1920 by 1080. Pixels of 16 bits lie two in a word.
static Image picture_under(Size size, std::uint32_t format, std::vector<std::uint32_t> pixels, SDL_Rect place)
{
    tagOSD_MENU_CANVAS_S canvas{{}, {}, place, {0, 0, place.w, place.h - 1}, format, 0, 0, 0, 0, 0, {}};
    canvas.stMem.pvVirAddr = pixels.data();
    EXPECT_NE(canvas_problem(canvas, SIZE_MAX), nullptr); // larger than its base
    canvas.stBaseRect = {0, 0, 1920, 1080};
    const auto bytes = static_cast<std::size_t>(place.w * place.h * (format == 2 ? 4 : 2));
    EXPECT_NE(canvas_problem(canvas, bytes - 1), nullptr);
    EXPECT_EQ(canvas_problem(canvas, bytes), nullptr);
    Image picture(size);
    std::fill(picture.pixels.begin(), picture.pixels.end(), 0xFF646464);
    blend_layer(picture, scale_layer(copy_canvas(canvas), size));
    return picture;
}

TEST(Layer, LiesScaledOnEachChannelInThreeFormatsAndIsCutAtTheEdges)
{
    constexpr Size hd{1920, 1080};
    const std::tuple<Size, std::uint32_t, std::uint32_t, SDL_Rect, SDL_Rect, Color> cases[] = {
        {hd, 0, 0x0000, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFF646464},     // the one transparent value
        {hd, 0, 0x7FFF7FFF, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFFFFFFFF}, // color without the alpha bit counts as shown
        {hd, 0, 0x84218421, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFF080808}, // the background of the menu, opaque
        {hd, 1, 0x0FFF0FFF, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFF646464},
        {hd, 1, 0x800F800F, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFF2F2FB7}, // alpha 136: 100 * 119 / 255 = 47, and 136 of blue
        {hd, 2, 0x00FFFFFF, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFF646464},
        {hd, 2, 0x800A0A0A, {8, 5, 2, 1}, {8, 5, 2, 1}, 0xFF373737}, // 10 * 128 / 255 = 5, 100 * 127 / 255 = 50
        {{3840, 2160}, 2, 0xFFFF0000, {960, 540, 96, 54}, {1920, 1080, 192, 108}, 0xFFFF0000},
        {{640, 360}, 2, 0xFFFF0000, {960, 540, 96, 54}, {320, 180, 32, 18}, 0xFFFF0000},
        {{1280, 720}, 2, 0xFFFF0000, {-48, 1062, 96, 54}, {0, 708, 32, 12}, 0xFFFF0000},
        {hd, 2, 0xFFFF0000, {1900, -53, 96, 54}, {1900, 0, 20, 1}, 0xFFFF0000},
        {hd, 2, 0xFFFF0000, {5000, -900, 96, 54}, {0, 0, 0, 0}, 0},
    };
    for (const auto& [size, format, pixels, place, shown, seen] : cases) {
        Image expected(size);
        std::fill(expected.pixels.begin(), expected.pixels.end(), 0xFF646464);
        for (int y = shown.y; y < shown.y + shown.h; ++y) {
            std::fill_n(expected.row(y) + shown.x, shown.w, seen);
        }
        const std::vector<std::uint32_t> canvas(static_cast<std::size_t>(place.w * place.h), pixels);
        EXPECT_TRUE(picture_under(size, format, canvas, place).pixels == expected.pixels) << std::hex << pixels;
    }
    // Three by three pixels, three of them white and two black, become one: white 3 * 255 / 9, 100 * 4 / 9 of the ground.
    const std::vector<std::uint32_t> nine = {~0U, ~0U, ~0U, 0xFF000000, 0, 0, 0, 0, 0xFF000000};
    EXPECT_EQ(picture_under({640, 360}, 2, nine, {0, 0, 3, 3}).pixels[0], 0xFF818181U);
}
