#include "simulator/video/scene.h"

#include <algorithm>
#include <cmath>
#include <list>
#include <mutex>
#include <utility>

namespace sim {
namespace {

/// A place that moves from side to side of the scene and comes back on the other one; margin is its own size.
double travelling(double start, double speed, double seconds, double margin)
{
    const double way = scene_width + 2 * margin;
    const double place = std::fmod(start + margin + speed * seconds, way);
    return (place < 0 ? place + way : place) - margin;
}

void draw_sky(Painter& painter)
{
    painter.gradient_box(0, 0, scene_width, 620, 0x4A86C4, 0xBCD2E4);
    painter.ellipse({1420, 150}, 110, 110, 0xFFF6D8, 0.35);
    painter.circle({1420, 150}, 62, 0xFFF3C4);
}

/// They end above the hills and all that stands on these, so that they needn't be drawn before them.
void draw_clouds(Painter& painter, double seconds, bool everywhere)
{
    for (const Point& cloud : {Point{1190, 150}, Point{1500, 300}, Point{1730, 190}}) {
        const double x = everywhere ? travelling(cloud.x, 14, seconds, 260) : cloud.x - 60 * std::sin(seconds / 9);
        painter.stand_at({x, cloud.y});
        painter.ellipse({0, 0}, 130, 34, 0xEEF3F7);
        painter.ellipse({-80, 14}, 80, 26, 0xEEF3F7);
        painter.ellipse({85, 12}, 90, 28, 0xEEF3F7);
        painter.ellipse({10, -24}, 70, 30, 0xEEF3F7);
    }
}

/// Fills everything below a line, whose height is given for each x.
template <typename HeightAt>
void draw_ground(Painter& painter, Color color, HeightAt height_at)
{
    std::vector<Point> outline = {{scene_width, scene_height}, {0, scene_height}};
    for (int x = 0; x <= scene_width; x += 8) {
        outline.push_back({static_cast<double>(x), height_at(x)});
    }
    painter.polygon(outline, color);
}

void draw_hills(Painter& painter)
{
    draw_ground(painter, 0x8096AE, [](double x) { return 500 + 62 * std::sin(x / 310 + 1) + 26 * std::sin(x / 118); });
    draw_ground(painter, 0x5F8A5A, [](double x) { return 596 + 44 * std::sin(x / 420 + 2.1) + 12 * std::sin(x / 97); });
    draw_ground(painter, 0x7FAB58, [](double x) { return 690 + 16 * std::sin(x / 600); });
}

/// By its lower left corner.
void draw_house(Painter& painter, Point at, Color wall)
{
    painter.stand_at(at);
    painter.box(0, -170, 250, 170, wall);
    painter.polygon({{-22, -166}, {125, -262}, {272, -166}}, 0x8E4A3C);
    painter.box(188, -262, 26, 62, 0x6D4438);
    for (const double window : {28.0, 164.0}) {
        painter.box(window - 5, -133, 68, 62, 0xF4EFE4);
        painter.box(window, -128, 27, 52, 0x40566A);
        painter.box(window + 31, -128, 27, 52, 0x40566A);
    }
    painter.box(105, -88, 44, 88, 0x5A4636);
    painter.circle({141, -44}, 3.5, 0xE0C060);
}

void draw_tree(Painter& painter, double x)
{
    painter.stand_at({x, 792});
    painter.box(-9, -90, 18, 90, 0x6B4A30);
    painter.ellipse({0, -150}, 66, 84, 0x3C6E38);
    painter.ellipse({-22, -168}, 34, 42, 0x4C8446);
}

void draw_street(Painter& painter)
{
    painter.stand_at({0, 0});
    painter.box(0, 790, scene_width, 46, 0x98938A);
    painter.box(0, 836, scene_width, 8, 0x78746C);
    painter.box(0, 844, scene_width, 170, 0x53565B);
    for (int x = 20; x < scene_width; x += 160) {
        painter.box(x, 925, 84, 7, 0xE8E6DC);
    }
    painter.box(0, 1014, scene_width, 66, 0x6D9A4C);
}

void draw_lamp(Painter& painter)
{
    painter.stand_at({1040, 812});
    painter.box(-4, -300, 8, 300, 0x49515A);
    painter.box(-4, -300, 62, 6, 0x49515A);
    painter.ellipse({58, -294}, 17, 8, 0xF7EFC0);
}

/// A car by the middle of its underside; direction 1 drives to the right, -1 to the left.
void draw_car(Painter& painter, Point at, double direction, Color paint)
{
    painter.stand_at(at, direction);
    painter.ellipse({0, -2}, 150, 11, 0x33363A, 0.6);
    painter.polygon({{-92, -72}, {-62, -122}, {44, -122}, {88, -72}}, paint);
    painter.polygon({{-76, -74}, {-54, -113}, {-12, -113}, {-12, -74}}, 0x2F3E4C);
    painter.polygon({{-2, -74}, {-2, -113}, {39, -113}, {69, -74}}, 0x2F3E4C);
    painter.polygon({{-142, -24}, {-146, -66}, {-92, -76}, {88, -76}, {136, -62}, {146, -24}}, paint);
    painter.ellipse({137, -50}, 9, 8, 0xFFF4C0);
    painter.ellipse({-141, -54}, 6, 8, 0xD03028);
    for (const double wheel : {-84.0, 88.0}) {
        painter.circle({wheel, -26}, 27, 0x24262A);
        painter.circle({wheel, -26}, 13, 0xB8BCC0);
    }
}

/// A person by the feet, in mid-step as the time says.
void draw_person(Painter& painter, Point at, double seconds)
{
    const double swing = 17 * std::sin(seconds * 6 + 1);
    painter.stand_at(at);
    for (const double foot : {swing, -swing}) {
        painter.polygon({{-7, -62}, {7, -62}, {foot + 7, 0}, {foot - 5, 0}}, 0x2E3B57);
    }
    painter.ellipse({0, -88}, 15, 34, 0xB8443A);
    painter.polygon({{-4, -112}, {5, -112}, {4 - swing, -64}, {-4 - swing, -64}}, 0x97362E);
    painter.circle({2, -132}, 13, 0xD9A981);
    painter.ellipse({-1, -138}, 13, 9, 0x3B2A20);
}

Image draw_backdrop(const View& view)
{
    Image image(view.size);
    Painter painter(image, view.lens, view.tones);
    draw_sky(painter);
    draw_hills(painter);
    draw_house(painter, {1180, 790}, 0xD9CDB4);
    draw_house(painter, {240, 780}, 0x8F7A6C);
    for (const double x : {90.0, 640.0, 905.0, 1560.0, 1800.0}) {
        draw_tree(painter, x);
    }
    draw_street(painter);
    draw_lamp(painter);
    return image;
}

/// The backdrop as it was drawn for one of the last few views, or a new one.
std::shared_ptr<const Image> backdrop_of(const View& view)
{
    constexpr std::size_t max_kept = 8; // three channels, their small pictures, and what makes edges of both soft
    static std::mutex mutex;
    static std::list<std::pair<View, std::shared_ptr<const Image>>> kept; // the last used first
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found =
        std::find_if(kept.begin(), kept.end(), [&](const auto& row) { return row.first.all() == view.all(); });
    if (found != kept.end()) {
        kept.splice(kept.begin(), kept, found);
    } else {
        kept.emplace_front(view, std::make_shared<const Image>(draw_backdrop(view)));
        kept.resize(std::min(kept.size(), max_kept));
    }
    return kept.front().second;
}

} // namespace

Image draw_scene(const View& view, double seconds, bool clouds_everywhere)
{
    Image image = *backdrop_of(view);
    Painter painter(image, view.lens, view.tones);
    draw_clouds(painter, seconds, clouds_everywhere);
    draw_person(painter, {travelling(1500, 70, seconds, 60), 826}, seconds);
    draw_car(painter, {travelling(1700, -210, seconds, 220), 900}, -1, 0x3F6C9E);
    draw_car(painter, {travelling(1240, 300, seconds, 220), 1000}, 1, 0xC23B31);
    return image;
}

} // namespace sim
