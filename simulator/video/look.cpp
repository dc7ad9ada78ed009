#include "simulator/video/look.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <string>

namespace sim {
namespace {

struct ShareKey {
    const char* key;
    double Tones::*tone;
};
/// Seen as a share of the range on either side of the default.
constexpr ShareKey share_keys[] = {
    {"Brightness", &Tones::brightness}, {"Contrast", &Tones::contrast}, {"Saturation", &Tones::saturation}};

struct SwitchKey {
    const char* key;
    bool Look::*on;
};
constexpr SwitchKey switch_keys[] = {{"Mirror", &Look::mirror}, {"Flip", &Look::flip}};

/// What an option stands for.
struct NumberOption {
    const char* option;
    double number;
};

/// What an exposure mode leaves to the operator; all else the camera sets by itself.
struct ExposureMode {
    const char* option;
    bool shutter;
    bool iris;
    bool gain;
    bool bright_level;
    bool corrected; ///< by compensation and backlight
};
constexpr ExposureMode exposure_modes[] = {{"Auto", false, false, false, false, true},
                                           {"Manual", true, true, true, false, false},
                                           {"ShutterPri", true, false, false, false, false},
                                           {"IrisPri", false, true, false, false, false},
                                           {"BrightPri", false, false, false, true, false}};
constexpr double stops_per_compensation = 1.0 / 3;
constexpr double stops_per_bright_level = 0.25;
constexpr double backlight_stops = 1;
constexpr double decibels_per_stop = 6;
constexpr double decibels_per_gain_limit = 2;
/// The share of the light that an operator's shutter or iris takes away, or gives, for which the camera makes up.
constexpr double automatic_share = 0.5;

constexpr NumberOption wdr_options[] = {{"Low", 0.33}, {"Medium", 0.66}, {"High", 1}};

/// Grain of the sensor, in steps of a component.
constexpr double noise_at_rest = 4;
constexpr double noise_per_decibel = 1;
/// What automatic noise reduction leaves of the noise that gain brings; it removes the noise at rest.
constexpr double automatic_rest = 0.5;
constexpr double nr2d_per_step = 0.1;
constexpr double nr3d_per_step = 0.08;

/// In kelvin: the light for which a mode makes white; the scene lies in daylight.
constexpr double daylight = 5600;
constexpr NumberOption white_options[] = {{"Indoor", 3200}, {"Outdoor", 6500}};
/// What a measurement of the whole scene finds, which takes sky and grass for white: the means of red, green and blue
/// become alike.
constexpr double measured_red = 1.5;
constexpr double measured_blue = 0.83;
constexpr double degrees_per_hue = 6;

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

constexpr NumberOption width_options[] = {{"SizeSmall", 0.2}, {"Medium", 0.25}, {"SizeLarge", 0.33}};

struct PatternOption {
    const char* option;
    Pattern pattern;
};
constexpr PatternOption pattern_options[] = {{"ColorBars", Pattern::ColorBars}, {"GrayRamp", Pattern::GrayRamp}};

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

const Setting* find_option(const Settings& settings, const char* key)
{
    const Setting* setting = settings.find_key(key);
    return setting != nullptr && setting->kind == SettingKind::Option ? setting : nullptr;
}

std::string option_of(const Settings& settings, const char* key)
{
    const Setting* setting = find_option(settings, key);
    return setting != nullptr ? settings.value(setting->id) : "";
}

const Setting* find_number(const Settings& settings, const char* key)
{
    const Setting* setting = settings.find_key(key);
    const bool fits =
        setting != nullptr && (setting->kind == SettingKind::Integer || setting->kind == SettingKind::HexColor);
    return fits ? setting : nullptr;
}

double number_or(const Settings& settings, const char* key, double missing)
{
    const Setting* setting = find_number(settings, key);
    return setting != nullptr ? settings.number(setting->id) : missing;
}

/// How far a setting stands from its default, which leaves the picture as it is; 0 when there is none.
double steps_from_default(const Settings& settings, const char* key)
{
    const Setting* setting = find_number(settings, key);
    return setting == nullptr ? 0.0 : settings.number(setting->id) - number_of(*setting, setting->default_text);
}

/// The same as a share of the range on that side: -1 to 1.
double share_from_default(const Settings& settings, const char* key)
{
    const double steps = steps_from_default(settings, key);
    if (steps == 0) {
        return 0;
    }
    const Setting& setting = *find_number(settings, key);
    const double neutral = number_of(setting, setting.default_text);
    return steps / (steps > 0 ? setting.max - neutral : neutral - setting.min);
}

/// The number in an option such as "1/60" or "F2.8"; 0 when it doesn't begin like that.
double number_behind(const std::string& start, const std::string& option)
{
    return option.compare(0, start.size(), start) == 0 ? std::strtod(option.c_str() + start.size(), nullptr) : 0;
}

/// How many times larger an option's number is than its default's; 1 when one of them has none.
double ratio_to_default(const Settings& settings, const char* key, const std::string& start)
{
    const Setting* setting = find_option(settings, key);
    if (setting == nullptr) {
        return 1;
    }
    const double neutral = number_behind(start, setting->default_text);
    const double present = number_behind(start, settings.value(setting->id));
    return neutral > 0 && present > 0 ? present / neutral : 1;
}

/// Light by exposure and gain, and the gain alone, which brings noise.
struct Light {
    double stops = 0;
    double decibels = 0;
};

/// What the camera itself does about the light that its operator's shutter and iris give: it amplifies, up to the
/// limit, or takes light away.
Light make_up_for(double stops, double limit)
{
    const double missing = -stops * automatic_share;
    const double decibels = std::clamp(missing * decibels_per_stop, 0.0, limit);
    return {missing < 0 ? missing : decibels / decibels_per_stop, decibels};
}

Light corrections(const Settings& settings)
{
    Light light;
    if (option_of(settings, "ExpComp") == "On") {
        light.stops += stops_per_compensation * steps_from_default(settings, "ExpCompLevel");
    }
    if (option_of(settings, "Backlight") == "On") {
        light.stops += backlight_stops;
    }
    return light;
}

Light light_of(const Settings& settings, const ExposureMode& mode)
{
    Light light = mode.corrected ? corrections(settings) : Light();
    if (mode.shutter) {
        light.stops -= std::log2(ratio_to_default(settings, "Shutter", "1/"));
    }
    if (mode.iris) {
        light.stops -= 2 * std::log2(ratio_to_default(settings, "Iris", "F"));
    }
    if (mode.bright_level) {
        light.stops += stops_per_bright_level * steps_from_default(settings, "BrightLevel");
    }
    if (mode.gain) {
        light.decibels = number_or(settings, "Gain", 0);
        light.stops += steps_from_default(settings, "Gain") / decibels_per_stop;
    } else if (mode.shutter || mode.iris) {
        const double limit = decibels_per_gain_limit * number_or(settings, "GainLimit", 0);
        const Light automatic = make_up_for(light.stops, limit);
        light = {light.stops + automatic.stops, automatic.decibels};
    }
    return light;
}

double noise_of(const Settings& settings, double decibels)
{
    const double gained = noise_per_decibel * decibels;
    const std::string reduction = option_of(settings, "NoiseReduction");
    if (reduction == "Off") {
        return noise_at_rest + gained;
    }
    if (reduction == "Manual") {
        return (noise_at_rest + gained) * (1 - nr2d_per_step * number_or(settings, "Nr2d", 0)) *
               (1 - nr3d_per_step * number_or(settings, "Nr3d", 0));
    }
    return automatic_rest * gained;
}

void read_exposure(const Settings& settings, Look& look)
{
    Light light;
    if (const ExposureMode* mode = find_row(exposure_modes, option_of(settings, "ExposureMode"))) {
        light = light_of(settings, *mode);
        look.tones.closed = mode->iris && option_of(settings, "Iris") == "IrisClose";
    }
    look.tones.stops = light.stops;
    look.noise = noise_of(settings, light.decibels);
    if (const NumberOption* row = find_row(wdr_options, option_of(settings, "Wdr"))) {
        look.tones.shadow_light = row->number;
    }
}

/// A picture of daylight, made white for light of another temperature.
void balance_for(double kelvin, Tones& tones)
{
    tones.red_gain = std::pow(kelvin / daylight, 1.2);
    tones.blue_gain = std::pow(daylight / kelvin, 1.4);
}

void read_white_balance(const Settings& settings, Tones& tones)
{
    const std::string mode = option_of(settings, "WbMode");
    if (const NumberOption* row = find_row(white_options, mode)) {
        balance_for(row->number, tones);
    } else if (mode == "ColorTempMode") {
        balance_for(number_or(settings, "ColorTemp", daylight), tones);
    } else if (mode == "OnePush") {
        tones.red_gain = measured_red;
        tones.blue_gain = measured_blue;
    } else if (mode == "Manual") {
        constexpr double stops = 2; // at both ends of the range
        tones.red_gain = std::exp2(stops * share_from_default(settings, "RedGain"));
        tones.blue_gain = std::exp2(stops * share_from_default(settings, "BlueGain"));
    }
    tones.hue = degrees_per_hue * steps_from_default(settings, "Hue");
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
    if (const NumberOption* row = find_row(width_options, option_of(settings, "PipSize"))) {
        inset.width = row->number;
    }
}

} // namespace

Look look_of(const Settings& settings)
{
    Look look;
    for (const ShareKey& row : share_keys) {
        look.tones.*row.tone = share_from_default(settings, row.key);
    }
    for (const SwitchKey& row : switch_keys) {
        look.*row.on = option_of(settings, row.key) == "On";
    }
    look.sharpness = share_from_default(settings, "Sharpness");
    look.zoom = std::max(1.0, number_or(settings, "Zoom", 100) / 100.0); // the setting counts in percent
    if (const PatternOption* row = find_row(pattern_options, option_of(settings, "TestPattern"))) {
        look.pattern = row->pattern;
    }
    read_exposure(settings, look);
    read_white_balance(settings, look.tones);
    read_arrangement(settings, look);
    read_lights(settings, look);
    return look;
}

} // namespace sim
