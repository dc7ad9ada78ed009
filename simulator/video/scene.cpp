#include "simulator/video/scene.h"

#include <algorithm>
#include <cmath>
#include <list>
#include <memory>
#include <mutex>

#include "simulator/video/painter.h"

namespace sim {
namespace {

constexpr double scene_width = 1920;
constexpr double scene_height = 1080;

/// A place that moves from side to side of the scene and comes back on the other one; margin is its own size.
double travelling(double start, double speed, double seconds, double margin)
{
    const double way = scene_width + 2 * margin;
    const double place = std::fmod(start + margin + speed * seconds, way);
    return (place < 0 ? place + way : place) - margin;
}

void draw_sky(Painter& painter)
{
    painter.gradient(0, 0x4A86C4, 620, 0xBCD2E4);
    painter.ellipse({1420, 150}, 110, 110, 0xFFF6D8, 0.35);
    painter.circle({1420, 150}, 62, 0xFFF3C4);
}

/// They end above the hills and all that stands on these, so that they needn't be drawn before them.
void draw_clouds(Painter& painter, double seconds)
{
    constexpr Box puffs[] = {{0, 0, 130, 34}, {-80, 14, 80, 26}, {85, 12, 90, 28}, {10, -24, 70, 30}};
    constexpr Point clouds[] = {{1120, 150}, {1500, 300}, {1830, 190}};
    for (const Point& cloud : clouds) {
        const double x = travelling(cloud.x, 14, seconds, 260);
        for (const Box& puff : puffs) {
            painter.ellipse({x + puff.left, cloud.y + puff.top}, puff.width, puff.height, 0xEEF3F7);
        }
    }
}

void draw_hills(Painter& painter)
{
    painter.ground([](double x) { return 500 + 62 * std::sin(x / 310 + 1) + 26 * std::sin(x / 118); }, 0x8096AE);
    painter.ground([](double x) { return 596 + 44 * std::sin(x / 420 + 2.1) + 12 * std::sin(x / 97); }, 0x5F8A5A);
    painter.ground([](double x) { return 690 + 16 * std::sin(x / 600); }, 0x7FAB58);
}

void draw_house(Painter& painter, double left, double ground, Color wall)
{
    painter.box({left, ground - 170, 250, 170}, wall);
    painter.polygon({{left - 22, ground - 166}, {left + 125, ground - 262}, {left + 272, ground - 166}}, 0x8E4A3C);
    painter.box({left + 188, ground - 262, 26, 62}, 0x6D4438);
    for (const double window : {28.0, 164.0}) {
        painter.box({left + window - 5, ground - 133, 68, 62}, 0xF4EFE4);
        painter.box({left + window, ground - 128, 27, 52}, 0x40566A);
        painter.box({left + window + 31, ground - 128, 27, 52}, 0x40566A);
    }
    painter.box({left + 105, ground - 88, 44, 88}, 0x5A4636);
    painter.circle({left + 141, ground - 44}, 3.5, 0xE0C060);
}

void draw_tree(Painter& painter, double x, double ground)
{
    painter.box({x - 9, ground - 90, 18, 90}, 0x6B4A30);
    painter.ellipse({x, ground - 150}, 66, 84, 0x3C6E38);
    painter.ellipse({x - 22, ground - 168}, 34, 42, 0x4C8446);
}

void draw_lamp(Painter& painter, double x, double ground)
{
    painter.box({x - 4, ground - 300, 8, 300}, 0x49515A);
    painter.box({x - 4, ground - 300, 62, 6}, 0x49515A);
    painter.ellipse({x + 58, ground - 294}, 17, 8, 0xF7EFC0);
}

void draw_street(Painter& painter)
{
    painter.box({-100, 790, 2200, 46}, 0x98938A);
    painter.box({-100, 836, 2200, 8}, 0x78746C);
    painter.box({-100, 844, 2200, 170}, 0x53565B);
    for (int x = 20; x < scene_width; x += 160) {
        painter.box({static_cast<double>(x), 925, 84, 7}, 0xE8E6DC);
    }
    painter.box({-100, 1014, 2200, 80}, 0x6D9A4C);
}

/// A car by the middle of its underside; direction 1 drives to the right, -1 to the left.
void draw_car(Painter& painter, Point at, double direction, Color paint)
{
    const auto place = [&](double x, double y) { return Point{at.x + direction * x, at.y + y}; };
    painter.ellipse({at.x, at.y - 2}, 150, 11, 0x33363A, 0.6);
    painter.polygon({place(-92, -72), place(-62, -122), place(44, -122), place(88, -72)}, paint);
    painter.polygon({place(-76, -74), place(-54, -113), place(-12, -113), place(-12, -74)}, 0x2F3E4C);
    painter.polygon({place(-2, -74), place(-2, -113), place(39, -113), place(69, -74)}, 0x2F3E4C);
    painter.polygon(
        {place(-142, -24), place(-146, -66), place(-92, -76), place(88, -76), place(136, -62), place(146, -24)}, paint);
    painter.ellipse(place(137, -50), 9, 8, 0xFFF4C0);
    painter.ellipse(place(-141, -54), 6, 8, 0xD03028);
    for (const double wheel : {-84.0, 88.0}) {
        painter.circle(place(wheel, -26), 27, 0x24262A);
        painter.circle(place(wheel, -26), 13, 0xB8BCC0);
    }
}

/// A person by the feet, in mid-step as the time says.
void draw_person(Painter& painter, Point at, double seconds)
{
    const double swing = 17 * std::sin(seconds * 6 + 1);
    for (const double foot : {swing, -swing}) {
        painter.polygon(
            {{at.x - 7, at.y - 62}, {at.x + 7, at.y - 62}, {at.x + foot + 7, at.y}, {at.x + foot - 5, at.y}}, 0x2E3B57);
    }
    painter.ellipse({at.x, at.y - 88}, 15, 34, 0xB8443A);
    painter.polygon(
        {{at.x - 4, at.y - 112}, {at.x + 5, at.y - 112}, {at.x - swing + 4, at.y - 64}, {at.x - swing - 4, at.y - 64}},
        0x97362E);
    painter.circle({at.x + 2, at.y - 132}, 13, 0xD9A981);
    painter.ellipse({at.x - 1, at.y - 138}, 13, 9, 0x3B2A20);
}

/// The digits 0 to 9 and the colon, 3 by 5 dots each, rows from the top, the left dot in the highest of three bits.
constexpr unsigned glyphs[11][5] = {{7, 5, 5, 5, 7}, {2, 6, 2, 2, 7}, {7, 1, 7, 4, 7}, {7, 1, 7, 1, 7},
                                    {5, 5, 7, 1, 1}, {7, 4, 7, 1, 7}, {7, 4, 7, 5, 7}, {7, 1, 2, 2, 2},
                                    {7, 5, 7, 5, 7}, {7, 5, 7, 1, 7}, {0, 2, 0, 2, 0}};

void draw_glyph(Painter& painter, std::size_t glyph, double left, double top, double dot)
{
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 3; ++column) {
            if ((glyphs[glyph][row] >> (2 - column) & 1U) != 0) {
                painter.box({left + column * dot, top + row * dot, dot, dot}, 0xF2F2F2);
            }
        }
    }
}

Painter lens(Image& image, double zoom)
{
    const Point origin{(scene_width - scene_width / zoom) / 2, (scene_height - scene_height / zoom) / 2};
    return {image, origin, image.size.width / scene_width * zoom};
}

Image draw_backdrop(Size size, double zoom)
{
    Image image(size);
    Painter painter = lens(image, zoom);
    draw_sky(painter);
    draw_hills(painter);
    draw_house(painter, 1180, 790, 0xD9CDB4);
    draw_house(painter, 240, 780, 0x8F7A6C);
    for (const double x : {90.0, 640.0, 905.0, 1560.0, 1800.0}) {
        draw_tree(painter, x, 792);
    }
    draw_street(painter);
    draw_lamp(painter, 1040, 812);
    return image;
}

/// What stands still, as it was drawn for the last few sizes and zooms.
class Backdrops {
public:
    std::shared_ptr<const Image> get(Size size, double zoom)
    {
        if (auto kept = find(size, zoom)) {
            return kept;
        }
        // Drawn without the lock: two threads may draw the same, but none waits for another.
        auto image = std::make_shared<const Image>(draw_backdrop(size, zoom));
        const std::lock_guard<std::mutex> lock(mutex_);
        kept_.push_front({zoom, image});
        kept_.resize(std::min(kept_.size(), max_kept));
        return image;
    }

private:
    struct Kept {
        double zoom = 1;
        std::shared_ptr<const Image> image;
    };

    std::shared_ptr<const Image> find(Size size, double zoom)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        const auto fits = [&](const Kept& kept) { return kept.zoom == zoom && kept.image->size == size; };
        const auto found = std::find_if(kept_.begin(), kept_.end(), fits);
        if (found == kept_.end()) {
            return nullptr;
        }
        kept_.splice(kept_.begin(), kept_, found);
        return kept_.front().image;
    }

    static constexpr std::size_t max_kept = 6; ///< three channels, each with a small picture in the large one
    std::mutex mutex_;
    std::list<Kept> kept_; ///< the last used first
};

} // namespace

Image draw_scene(Size size, double seconds, double zoom)
{
    static Backdrops backdrops;
    Image image = *backdrops.get(size, zoom);
    Painter painter = lens(image, zoom);
    draw_clouds(painter, seconds);
    draw_person(painter, {travelling(1500, 70, seconds, 60), 826}, seconds);
    draw_car(painter, {travelling(1700, -210, seconds, 220), 900}, -1, 0x3F6C9E);
    draw_car(painter, {travelling(1240, 300, seconds, 220), 1000}, 1, 0xC23B31);
    return image;
}

void draw_time_code(Image& image, double seconds)
{
    const double scale = image.size.width / scene_width;
    Painter painter(image, {0, 0}, scale);
    painter.box({1650, 30, 240, 50}, 0x202428);
    painter.circle({1672, 55}, 9, 0xE03A30);
    const auto hundredths = static_cast<long long>(std::max(0.0, seconds) * 100);
    const long long parts[] = {hundredths / 360000 % 100, hundredths / 6000 % 60, hundredths / 100 % 60,
                               hundredths % 100};
    constexpr double dot = 5;
    constexpr std::size_t colon = 10;
    double left = 1694;
    for (const long long part : parts) {
        if (left > 1694) {
            draw_glyph(painter, colon, left - 2.8 * dot, 42, dot);
        }
        draw_glyph(painter, static_cast<std::size_t>(part / 10), left, 42, dot);
        draw_glyph(painter, static_cast<std::size_t>(part % 10), left + 3.6 * dot, 42, dot);
        left += 9.4 * dot;
    }
}

} // namespace sim
