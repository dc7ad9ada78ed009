#include "simulator/video/tones.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sim {
namespace {

/// How bright a component looks for each value that the scene gives it.
using Curve = std::array<std::uint8_t, 256>;

/// The power of light that a component stands for.
constexpr double gamma = 2.2;

double exposed(double value, const Tones& tones, double gain)
{
    if (tones.closed) {
        return 0;
    }
    const double lit = value * std::pow(gain * std::exp2(tones.stops), 1 / gamma);
    const double share = std::min(lit / 255, 1.0);
    return tones.shadow_light > 0 ? 255 * std::pow(share, 1 - 0.45 * tones.shadow_light) : lit;
}

Curve make_curve(const Tones& tones, double gain)
{
    const double slope = tones.contrast < 0 ? 1 + 0.8 * tones.contrast : 1 + tones.contrast;
    Curve curve{};
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const double value = exposed(static_cast<double>(i), tones, gain);
        const double shown = (value - 128) * slope + 128 + 110 * tones.brightness;
        curve[i] = static_cast<std::uint8_t>(std::lround(std::clamp(shown, 0.0, 255.0)));
    }
    return curve;
}

struct Curves {
    Curve red, green, blue;
};

void apply_curves(Color* row, int width, const Curves& curves)
{
    for (int x = 0; x < width; ++x) {
        const Color pixel = row[x];
        row[x] = make_color(255, curves.red[component(pixel, 16)], curves.green[component(pixel, 8)],
                            curves.blue[component(pixel, 0)]);
    }
}

/// The parts of a pixel that has no alpha to care for.
struct Parts {
    int red, green, blue;
};

Parts parts_of(Color pixel)
{
    return {static_cast<int>(component(pixel, 16)), static_cast<int>(component(pixel, 8)),
            static_cast<int>(component(pixel, 0))};
}

/// Each component becomes a sum of itself, the one before it and the one behind it, in the ring of red, green and
/// blue. The factors count in 256ths; together they are 256, so that a grey stays as it is.
struct Turn {
    int before;
    int behind;
};

/// Colors turn about the axis of the greys.
Turn make_turn(double degrees)
{
    const double angle = degrees * std::acos(-1.0) / 180;
    const double aside = std::sin(angle) / std::sqrt(3.0);
    const double both = (1 - std::cos(angle)) / 3;
    return {static_cast<int>(std::lround(256 * (both + aside))), static_cast<int>(std::lround(256 * (both - aside)))};
}

void turn_hue(Color* row, int width, Turn turn)
{
    const int own = 256 - turn.before - turn.behind;
    for (int x = 0; x < width; ++x) {
        const Parts is = parts_of(row[x]);
        const auto sum = [&](int before, int itself, int behind) {
            return clamped((turn.before * before + own * itself + turn.behind * behind + 128) >> 8);
        };
        row[x] = make_color(255, sum(is.blue, is.red, is.green), sum(is.red, is.green, is.blue),
                            sum(is.green, is.blue, is.red));
    }
}

/// Moves components away from the grey of their pixel, or towards it; 256 leaves them as they are.
void saturate(Color* row, int width, int strength)
{
    for (int x = 0; x < width; ++x) {
        const Parts is = parts_of(row[x]);
        const int grey = (77 * is.red + 150 * is.green + 29 * is.blue) / 256;
        const auto moved = [&](int part) { return clamped(grey + (part - grey) * strength / 256); };
        row[x] = make_color(255, moved(is.red), moved(is.green), moved(is.blue));
    }
}

bool bends_curves(const Tones& tones)
{
    return tones.closed || tones.stops != 0 || tones.shadow_light != 0 || tones.red_gain != 1 || tones.blue_gain != 1 ||
           tones.brightness != 0 || tones.contrast != 0;
}

} // namespace

void apply_tones(Image& image, const Tones& tones)
{
    const bool curved = bends_curves(tones);
    const Curves curves = {make_curve(tones, tones.red_gain), make_curve(tones, 1), make_curve(tones, tones.blue_gain)};
    const Turn turn = make_turn(tones.hue);
    const int strength = static_cast<int>(std::lround(256 * (1 + tones.saturation)));
    const int width = image.size.width;
    // Row by row: what one step wrote is still in the cache when the next one reads it.
    for (int y = 0; y < image.size.height; ++y) {
        if (curved) {
            apply_curves(image.row(y), width, curves);
        }
        if (tones.hue != 0) {
            turn_hue(image.row(y), width, turn);
        }
        if (tones.saturation != 0) {
            saturate(image.row(y), width, strength);
        }
    }
}

} // namespace sim
