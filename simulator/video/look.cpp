#include "simulator/video/look.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <utility>

namespace sim {
namespace {

/// What an option stands for.
template <typename Value>
using Choice = std::pair<const char*, Value>;

constexpr double stops_per_compensation = 1.0 / 3;
constexpr double stops_per_bright_level = 0.25;
constexpr double backlight_stops = 1;
constexpr double decibels_per_stop = 6;
constexpr double decibels_per_gain_limit = 2;
/// The share of the light that an operator's shutter or iris takes away, or gives, for which the camera makes up.
constexpr double automatic_share = 0.5;

constexpr Choice<double> wdr_strengths[] = {{"Low", 0.33}, {"Medium", 0.66}, {"High", 1}};

/// Grain of the sensor, in steps of a component.
constexpr double noise_at_rest = 4;
constexpr double noise_per_decibel = 1;
/// What automatic noise reduction leaves of the noise that gain brings; it removes the noise at rest.
constexpr double automatic_rest = 0.5;
constexpr double nr2d_per_step = 0.1;
constexpr double nr3d_per_step = 0.08;

/// In kelvin: the light for which a mode makes white; the scene lies in daylight.
constexpr double daylight = 5600;
constexpr Choice<double> white_lights[] = {{"Indoor", 3200}, {"Outdoor", 6500}};
/// What a measurement of the whole scene finds, which takes sky and grass for white: the means of red, green and blue
/// become alike.
constexpr double measured_red_stops = 0.58;
constexpr double measured_blue_stops = -0.27;
constexpr double stops_at_full_gain = 2;
constexpr double degrees_per_hue = 6;

constexpr Choice<Color> tally_colors[] = {{"Red", 0xE8202A}, {"Green", 0x1FC24B}};
constexpr double aspect = 16.0 / 9;
constexpr Choice<Mounting> angles[] = {{"90deg", {0, 1, aspect}}, {"180deg", {-1, 0, 1}}, {"270deg", {0, -1, aspect}}};
constexpr Choice<double> inset_widths[] = {{"SizeSmall", 0.2}, {"Medium", 0.25}, {"SizeLarge", 0.33}};
constexpr Choice<Pattern> patterns[] = {{"ColorBars", Pattern::ColorBars}, {"GrayRamp", Pattern::GrayRamp}};

/// A number that is set, with its default, which leaves the picture as it is, and its range.
struct Number {
    double present = 0;
    double neutral = 0;
    double min = 0;
    double max = 0;

    double steps() const { return present - neutral; }
    /// How far it stands from its default, as a share of the range on that side: -1 to 1.
    double share() const { return steps() == 0 ? 0 : steps() / (steps() > 0 ? max - neutral : neutral - min); }
};

/// The number in an option such as "1/60" or "F2.8", behind so many characters; 0 when there is none.
double number_behind(std::size_t start, const std::string& option)
{
    return option.size() > start ? std::strtod(option.c_str() + start, nullptr) : 0;
}

/// The settings as a picture needs them; one that the definitions don't have is empty or 0.
class Reader {
public:
    explicit Reader(const Settings& settings) : settings_(settings) {}

    std::string option(const char* key) const
    {
        const Setting* setting = settings_.find_key(key);
        return setting != nullptr && setting->kind == SettingKind::Option ? settings_.value(setting->id) : "";
    }

    bool on(const char* key) const { return option(key) == "On"; }

    /// What the table has for the option, if anything.
    template <typename Value, std::size_t N>
    std::optional<Value> choice(const char* key, const Choice<Value> (&table)[N]) const
    {
        const std::string present = option(key);
        const auto found = std::find_if(table, table + N, [&](const auto& row) { return present == row.first; });
        return found == table + N ? std::nullopt : std::optional<Value>(found->second);
    }

    Number number(const char* key) const
    {
        const Setting* setting = settings_.find_key(key);
        if (setting == nullptr || (setting->kind != SettingKind::Integer && setting->kind != SettingKind::HexColor)) {
            return {};
        }
        const double neutral = number_of(*setting, setting->default_text);
        return {1.0 * settings_.number(setting->id), neutral, 1.0 * setting->min, 1.0 * setting->max};
    }

    /// How often an option's number is twice its default's; 0 when one of them has none.
    double doublings(const char* key, std::size_t start) const
    {
        const double present = number_behind(start, option(key));
        const double neutral = present > 0 ? number_behind(start, settings_.find_key(key)->default_text) : 0;
        return neutral > 0 ? std::log2(present / neutral) : 0;
    }

private:
    const Settings& settings_;
};

/// Light by exposure and gain, and the gain alone, which brings noise.
struct Light {
    double stops = 0;
    double decibels = 0;
};

/// What the operator's shutter and iris give, and what the camera itself does about it: it amplifies, up to the limit, or
/// takes light away.
Light made_up_for(double stops, double limit)
{
    const double missing = -stops * automatic_share;
    const double decibels = std::clamp(missing * decibels_per_stop, 0.0, limit);
    return {stops + (missing < 0 ? missing : decibels / decibels_per_stop), decibels};
}

/// Of what the settings say, a mode leaves some to the operator; all else the camera sets by itself.
Light light_of(const Reader& read)
{
    const std::string mode = read.option("ExposureMode");
    const bool shutter = mode == "Manual" || mode == "ShutterPri";
    const bool iris = mode == "Manual" || mode == "IrisPri";
    if (iris && read.option("Iris") == "IrisClose") {
        return {-std::numeric_limits<double>::infinity(), 0};
    }
    double stops = 0;
    if (mode == "Auto") {
        stops += read.on("ExpComp") ? stops_per_compensation * read.number("ExpCompLevel").steps() : 0;
        stops += read.on("Backlight") ? backlight_stops : 0;
    } else if (mode == "BrightPri") {
        stops += stops_per_bright_level * read.number("BrightLevel").steps();
    }
    stops -= shutter ? read.doublings("Shutter", 2) : 0;
    stops -= iris ? 2 * read.doublings("Iris", 1) : 0;
    if (mode == "Manual") {
        return {stops + read.number("Gain").steps() / decibels_per_stop, read.number("Gain").present};
    }
    return shutter || iris ? made_up_for(stops, decibels_per_gain_limit * read.number("GainLimit").present)
                           : Light{stops, 0};
}

double noise_of(const Reader& read, double decibels)
{
    const double gained = noise_per_decibel * decibels;
    const std::string reduction = read.option("NoiseReduction");
    if (reduction == "Off") {
        return noise_at_rest + gained;
    }
    if (reduction == "Manual") {
        return (noise_at_rest + gained) * (1 - nr2d_per_step * read.number("Nr2d").present) *
               (1 - nr3d_per_step * read.number("Nr3d").present);
    }
    return automatic_rest * gained;
}

void read_exposure(const Reader& read, Look& look)
{
    const Light light = light_of(read);
    look.tones.stops = light.stops;
    look.noise = std::isinf(light.stops) ? 0 : noise_of(read, light.decibels);
    look.tones.shadow_light = read.choice("Wdr", wdr_strengths).value_or(0);
}

void read_white_balance(const Reader& read, Tones& tones)
{
    const std::string mode = read.option("WbMode");
    if (mode == "OnePush") {
        tones.red_stops = measured_red_stops;
        tones.blue_stops = measured_blue_stops;
    } else if (mode == "Manual") {
        tones.red_stops = stops_at_full_gain * read.number("RedGain").share();
        tones.blue_stops = stops_at_full_gain * read.number("BlueGain").share();
    } else { // a picture of daylight, made white for light of another temperature
        const double set = mode == "ColorTempMode" ? read.number("ColorTemp").present : 0;
        const double kelvin = read.choice("WbMode", white_lights).value_or(set > 0 ? set : daylight);
        const double warmth = std::log2(kelvin / daylight);
        tones.red_stops = 1.2 * warmth;
        tones.blue_stops = -1.4 * warmth;
    }
    tones.hue = degrees_per_hue * read.number("Hue").steps();
}

Color dimmed(Color color, double level)
{
    const auto part = [&](int shift) { return static_cast<std::uint32_t>(component(color, shift) * level); };
    return make_color(0, part(16), part(8), part(0));
}

void read_lights(const Reader& read, Look& look)
{
    const std::optional<Color> tally = read.choice("Tally", tally_colors);
    const std::string mode = read.option("LedMode");
    if (mode == "LedFollow") {
        look.lamp = tally;
    } else if (mode == "LedCustom") {
        look.lamp = static_cast<Color>(read.number("LedCustomColor").present);
    }
    if (tally) {
        const Number level = read.number("TallyLevel");
        look.tally = dimmed(*tally, level.max > 0 ? level.present / level.max : 1);
    }
}

std::optional<Inset> inset_of(const Reader& read)
{
    if (!read.on("PipMode")) {
        return std::nullopt;
    }
    const std::string corner = read.option("PipPos");
    const Inset usual;
    return Inset{read.option("PipSource") != "PipMain", corner != "TopLeft" && corner != "BottomLeft",
                 corner != "TopLeft" && corner != "TopRight",
                 read.choice("PipSize", inset_widths).value_or(usual.width)};
}

} // namespace

Look look_of(const Settings& settings)
{
    const Reader read(settings);
    Look look;
    look.tones.brightness = read.number("Brightness").share();
    look.tones.contrast = read.number("Contrast").share();
    look.tones.saturation = read.number("Saturation").share();
    read_exposure(read, look);
    read_white_balance(read, look.tones);
    look.sharpness = read.number("Sharpness").share();
    look.mirror = read.on("Mirror");
    look.flip = read.on("Flip");
    look.zoom = std::max(1.0, read.number("Zoom").present / 100); // the setting counts in percent
    look.mounting = read.choice("RotateAngle", angles).value_or(Mounting());
    if (read.option("RotateFit") == "FitBars") {
        look.mounting.scale = 1 / look.mounting.scale;
    }
    look.inset = inset_of(read);
    look.pattern = read.choice("TestPattern", patterns).value_or(Pattern::None);
    read_lights(read, look);
    return look;
}

} // namespace sim
