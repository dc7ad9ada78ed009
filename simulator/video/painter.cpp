#include "simulator/video/painter.h"

#include <algorithm>
#include <cmath>

namespace sim {
namespace {

Color mix(Color below, Color above, double strength)
{
    const auto factor = static_cast<std::uint32_t>(std::lround(std::clamp(strength, 0.0, 1.0) * 255.0));
    return lay_over(below, premultiply((above & 0xFFFFFFU) | factor << 24));
}

/// The rows, or columns, of the image that a stretch from one coordinate to another touches.
struct Stretch {
    int first;
    int end;
};

Stretch touched(double from, double to, int limit)
{
    const auto clip = [limit](double value) { return std::clamp(value, 0.0, static_cast<double>(limit)); };
    return {static_cast<int>(clip(std::floor(from))), static_cast<int>(clip(std::ceil(to)))};
}

/// Where the outline of a polygon crosses a horizontal line, from left to right.
std::vector<double> crossings(const std::vector<Point>& corners, double y)
{
    std::vector<double> places;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point& a = corners[i];
        const Point& b = corners[(i + 1) % corners.size()];
        if ((a.y <= y) != (b.y <= y)) {
            places.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
        }
    }
    std::sort(places.begin(), places.end());
    return places;
}

} // namespace

/// Fills part of a row; the pixels at both ends get the share that the stretch covers of them.
void Painter::span(int y, double from, double to, Color color, double strength)
{
    const Stretch columns = touched(from, to, target_.size.width);
    Color* row = target_.row(y);
    const auto fill = [&](int first, int end) {
        for (int x = first; x < end; ++x) {
            const double covered = std::min<double>(to, x + 1) - std::max<double>(from, x);
            row[x] = covered * strength > 0.999 ? color | 0xFF000000U : mix(row[x], color, covered * strength);
        }
    };
    // What lies between the ends is covered wholly.
    const int first_inner = std::min(columns.first + 1, columns.end);
    const int end_inner = strength > 0.999 ? std::max(first_inner, columns.end - 1) : first_inner;
    fill(columns.first, first_inner);
    std::fill(row + first_inner, row + end_inner, color | 0xFF000000U);
    fill(end_inner, columns.end);
}

void Painter::gradient(double top, Color upper, double bottom, Color lower)
{
    for (int y = 0; y < target_.size.height; ++y) {
        const double scene_y = origin_.y + (y + 0.5) / scale_;
        const Color color = mix(upper | 0xFF000000U, lower, (scene_y - top) / (bottom - top));
        std::fill_n(target_.row(y), target_.size.width, color);
    }
}

void Painter::ground(const std::function<double(double)>& height_at, Color color)
{
    std::vector<float> heights;
    for (int x = 0; x < target_.size.width; ++x) {
        heights.push_back(static_cast<float>(to_y(height_at(origin_.x + (x + 0.5) / scale_))));
    }
    const auto highest = std::min_element(heights.begin(), heights.end());
    for (int y = touched(static_cast<double>(*highest), 0.0, target_.size.height).first; y < target_.size.height; ++y) {
        Color* row = target_.row(y);
        const auto edge = static_cast<float>(y);
        for (std::size_t x = 0; x < heights.size(); ++x) {
            if (heights[x] <= edge) {
                row[x] = color | 0xFF000000U;
            } else if (heights[x] < edge + 1.0F) {
                row[x] = mix(row[x], color, static_cast<double>(edge + 1.0F - heights[x]));
            }
        }
    }
}

void Painter::box(const Box& box, Color color)
{
    const double top = to_y(box.top);
    const double bottom = to_y(box.top + box.height);
    const Stretch rows = touched(top, bottom, target_.size.height);
    for (int y = rows.first; y < rows.end; ++y) {
        const double covered = std::min<double>(bottom, y + 1) - std::max<double>(top, y);
        span(y, to_x(box.left), to_x(box.left + box.width), color, covered);
    }
}

void Painter::ellipse(Point center, double radius_x, double radius_y, Color color, double strength)
{
    const double middle = to_y(center.y);
    const double reach = radius_y * scale_;
    const Stretch rows = touched(middle - reach, middle + reach, target_.size.height);
    for (int y = rows.first; y < rows.end; ++y) {
        const double height = (y + 0.5 - middle) / reach;
        if (std::abs(height) < 1.0) {
            const double half = radius_x * scale_ * std::sqrt(1.0 - height * height);
            span(y, to_x(center.x) - half, to_x(center.x) + half, color, strength);
        }
    }
}

void Painter::polygon(const std::vector<Point>& corners, Color color)
{
    std::vector<Point> outline;
    for (const Point& corner : corners) {
        outline.push_back({to_x(corner.x), to_y(corner.y)});
    }
    const auto by_height = [](const Point& a, const Point& b) { return a.y < b.y; };
    const auto [highest, lowest] = std::minmax_element(outline.begin(), outline.end(), by_height);
    const Stretch rows = touched(highest->y, lowest->y, target_.size.height);
    for (int y = rows.first; y < rows.end; ++y) {
        const std::vector<double> places = crossings(outline, y + 0.5);
        for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
            span(y, places[i], places[i + 1], color, 1.0);
        }
    }
}

} // namespace sim
