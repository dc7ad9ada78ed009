#include "simulator/video/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string>

#include "simulator/video/painter.h"
#include "simulator/video/scene.h"

namespace sim {
namespace {

struct ToneKey {
    const char* key;
    double Look::*tone;
};
constexpr ToneKey tone_keys[] = {
    {"Brightness", &Look::brightness}, {"Contrast", &Look::contrast}, {"Saturation", &Look::saturation}};

struct SwitchKey {
    const char* key;
    bool Look::*on;
};
constexpr SwitchKey switch_keys[] = {{"Mirror", &Look::mirror}, {"Flip", &Look::flip}};

struct TallyColor {
    const char* option;
    Color color;
};
constexpr TallyColor tally_colors[] = {{"Red", 0xE8202A}, {"Green", 0x1FC24B}};

struct AngleOption {
    const char* option;
    int angle;
};
constexpr AngleOption angle_options[] = {{"90deg", 90}, {"180deg", 180}, {"270deg", 270}};

struct CornerOption {
    const char* option;
    bool right;
    bool bottom;
};
constexpr CornerOption corner_options[] = {
    {"TopLeft", false, false}, {"TopRight", true, false}, {"BottomLeft", false, true}, {"BottomRight", true, true}};

struct WidthOption {
    const char* option;
    double width;
};
constexpr WidthOption width_options[] = {{"SizeSmall", 0.2}, {"Medium", 0.25}, {"SizeLarge", 0.33}};

template <typename Row, std::size_t N>
const Row* find_row(const Row (&table)[N], const std::string& option)
{
    const auto found =
        std::find_if(std::begin(table), std::end(table), [&option](const Row& row) { return option == row.option; });
    return found == std::end(table) ? nullptr : found;
}

/// A setting's value as a share of its maximum: 0 to 1.
double share_of_max(const Settings& settings, const Setting& setting)
{
    return setting.max < 1 ? 0 : std::clamp(static_cast<double>(settings.number(setting.id)) / setting.max, 0.0, 1.0);
}

/// How far a setting stands from its default, which leaves the picture as it is, as a share of its range: -1 to 1.
double deviation(const Settings& settings, const Setting& setting)
{
    const double neutral = number_of(setting, setting.default_text);
    const double present = settings.number(setting.id);
    const double room = present > neutral ? setting.max - neutral : neutral - setting.min;
    return room > 0 ? (present - neutral) / room : 0;
}

std::string option_of(const Settings& settings, const char* key)
{
    const Setting* setting = settings.find_key(key);
    return setting != nullptr && setting->kind == SettingKind::Option ? settings.value(setting->id) : "";
}

const Setting* find_number(const Settings& settings, const char* key)
{
    const Setting* setting = settings.find_key(key);
    const bool fits =
        setting != nullptr && (setting->kind == SettingKind::Integer || setting->kind == SettingKind::HexColor);
    return fits ? setting : nullptr;
}

void read_lights(const Settings& settings, Look& look)
{
    const std::string tally = option_of(settings, "Tally");
    if (const TallyColor* row = find_row(tally_colors, tally)) {
        look.tally = row->color;
    }
    if (const Setting* level = find_number(settings, "TallyLevel")) {
        look.tally_level = share_of_max(settings, *level);
    }
    const std::string mode = option_of(settings, "LedMode");
    const Setting* custom = find_number(settings, "LedCustomColor");
    if (mode == "LedFollow") {
        look.lamp = look.tally;
    } else if (mode == "LedCustom" && custom != nullptr) {
        look.lamp = static_cast<Color>(settings.number(custom->id));
    }
}

void read_arrangement(const Settings& settings, Look& look)
{
    if (const AngleOption* row = find_row(angle_options, option_of(settings, "RotateAngle"))) {
        look.mounting.angle = row->angle;
    }
    look.mounting.crop = option_of(settings, "RotateFit") != "FitBars";
    if (option_of(settings, "PipMode") != "On") {
        return;
    }
    Inset& inset = look.inset.emplace();
    inset.panorama = option_of(settings, "PipSource") != "PipMain";
    if (const CornerOption* row = find_row(corner_options, option_of(settings, "PipPos"))) {
        inset.right = row->right;
        inset.bottom = row->bottom;
    }
    if (const WidthOption* row = find_row(width_options, option_of(settings, "PipSize"))) {
        inset.width = row->width;
    }
}

/// Brightness and contrast act alike on red, green and blue, so one table serves all three.
std::array<int, 256> tone_table(const Look& look)
{
    const double slope = look.contrast < 0 ? 1 + 0.8 * look.contrast : 1 + look.contrast;
    std::array<int, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double value = (static_cast<double>(i) - 128) * slope + 128 + 110 * look.brightness;
        table[i] = static_cast<int>(std::clamp(std::lround(value), 0L, 255L));
    }
    return table;
}

/// Moves a component away from the grey of its pixel, or towards it; 256 leaves it as it is.
std::uint32_t saturate(int component, int grey, int strength)
{
    return static_cast<std::uint32_t>(std::clamp(grey + (component - grey) * strength / 256, 0, 255));
}

void apply_tones(Image& image, const Look& look)
{
    const std::array<int, 256> tones = tone_table(look);
    const int strength = static_cast<int>(std::lround(256 * (1 + look.saturation)));
    for (Color& pixel : image.pixels) {
        const int red = tones[component(pixel, 16)];
        const int green = tones[component(pixel, 8)];
        const int blue = tones[component(pixel, 0)];
        const int grey = (77 * red + 150 * green + 29 * blue) / 256;
        pixel = make_color(255, saturate(red, grey, strength), saturate(green, grey, strength),
                           saturate(blue, grey, strength));
    }
}

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
    Image image(size);
    draw_scene(image, seconds, zoom);
    if (look.brightness != 0 || look.contrast != 0 || look.saturation != 0) {
        apply_tones(image, look);
    }
    reflect(image, look);
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

Look look_of(const Settings& settings)
{
    Look look;
    for (const ToneKey& row : tone_keys) {
        if (const Setting* setting = find_number(settings, row.key)) {
            look.*row.tone = deviation(settings, *setting);
        }
    }
    for (const SwitchKey& row : switch_keys) {
        look.*row.on = option_of(settings, row.key) == "On";
    }
    if (const Setting* zoom = find_number(settings, "Zoom")) {
        look.zoom = std::max(1.0, settings.number(zoom->id) / 100.0); // the setting counts in percent
    }
    read_arrangement(settings, look);
    read_lights(settings, look);
    return look;
}

Image draw_picture(Size size, const Look& look, double seconds)
{
    Image image = draw_view(size, look, look.zoom, seconds);
    turn_picture(image, look.mounting);
    if (look.inset) {
        const double zoom = look.inset->panorama ? 1 : look.zoom;
        lay_inset(image, draw_view(inset_size(size, *look.inset), look, zoom, seconds), *look.inset);
    }
    // Behind the lens: neither tones nor mirror reach what the camera writes onto its picture.
    draw_time_code(image, seconds);
    draw_lights(image, look);
    return image;
}

} // namespace sim
