#include "simulator/video/tones.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sim {
namespace {

/// The shares of red, green and blue, 0 to 1.
using Parts = std::array<double, 3>;

double within_range(double part) { return std::clamp(part, 0.0, 1.0); }

/// How bright a component of the scene looks under so much light.
double curve(double part, double stops, const Tones& tones)
{
    constexpr double gamma = 2.2; // the power of light that a component stands for
    const double lit = std::min(part * std::exp2(stops / gamma), 1.0);
    const double lifted = std::pow(lit, 1 - 0.45 * tones.shadow_light);
    const double slope = tones.contrast < 0 ? 1 + 0.8 * tones.contrast : 1 + tones.contrast;
    return within_range((lifted - 0.5) * slope + 0.5 + 0.43 * tones.brightness);
}

/// Colors turn about the axis of the greys.
Parts turned(const Parts& is, double degrees)
{
    const double angle = degrees * std::acos(-1.0) / 180;
    const double both = (1 - std::cos(angle)) / 3;
    const double aside = std::sin(angle) / std::sqrt(3.0);
    Parts parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double before = is[(i + 2) % 3];
        const double behind = is[(i + 1) % 3];
        parts[i] = within_range((1 - 2 * both) * is[i] + (both + aside) * before + (both - aside) * behind);
    }
    return parts;
}

/// Components move away from the grey of their color, or towards it.
Parts saturated(Parts parts, double saturation)
{
    const double grey = 0.3 * parts[0] + 0.59 * parts[1] + 0.11 * parts[2];
    for (double& part : parts) {
        part = within_range(part + (part - grey) * saturation);
    }
    return parts;
}

} // namespace

Color toned(Color color, const Tones& tones)
{
    const auto part = [&](int shift, double stops) { return curve(component(color, shift) / 255.0, stops, tones); };
    const Parts lit = {part(16, tones.stops + tones.red_stops), part(8, tones.stops),
                       part(0, tones.stops + tones.blue_stops)};
    const Parts shown = saturated(turned(lit, tones.hue), tones.saturation);
    const auto byte = [&](std::size_t i) { return static_cast<std::uint32_t>(std::lround(255 * shown[i])); };
    return make_color(255, byte(0), byte(1), byte(2));
}

} // namespace sim
