// Simple shapes with smooth edges, in the coordinates of the scene.
#pragma once

#include <functional>
#include <vector>

#include "simulator/video/image.h"

namespace sim {

struct Point {
    double x = 0;
    double y = 0;
};

struct Box {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Draws onto an image what a lens sees: scene coordinates are moved by `origin`, then multiplied by `scale`.
/// All colors are opaque; `strength` 0 to 1 lets the ground shine through.
class Painter {
public:
    Painter(Image& target, Point origin, double scale) : target_(target), origin_(origin), scale_(scale) {}

    /// Fills everything with a gradient from one scene height to another.
    void gradient(double top, Color upper, double bottom, Color lower);
    /// Fills everything below a line, whose height is given for each x.
    void ground(const std::function<double(double)>& height_at, Color color);
    void box(const Box& box, Color color);
    void ellipse(Point center, double radius_x, double radius_y, Color color, double strength = 1.0);
    void circle(Point center, double radius, Color color) { ellipse(center, radius, radius, color); }
    void polygon(const std::vector<Point>& corners, Color color);

private:
    double to_x(double x) const { return (x - origin_.x) * scale_; }
    double to_y(double y) const { return (y - origin_.y) * scale_; }
    void span(int y, double from, double to, Color color, double strength);

    Image& target_;
    Point origin_;
    double scale_;
};

} // namespace sim
