// Shapes with smooth edges, in the coordinates of the scene.
#pragma once

#include <vector>

#include "simulator/video/cairo_image.h"
#include "simulator/video/tones.h"

namespace sim {

struct Point {
    double x = 0;
    double y = 0;
};

/// Draws in coordinates of its own, which the lens brings onto the image, with all colors as the tones show them.
class Painter {
public:
    Painter(Image& image, const cairo_matrix_t& lens, const Tones& tones = {});

    /// All that follows is drawn around this point; with -1 as direction the other way round.
    void stand_at(Point place, double direction = 1);

    void box(double left, double top, double width, double height, Color color);
    /// Grows from one color to another between two heights.
    void gradient_box(double left, double top, double width, double height, Color upper, Color lower);
    void ellipse(Point center, double radius_x, double radius_y, Color color, double alpha = 1);
    void circle(Point center, double radius, Color color) { ellipse(center, radius, radius, color); }
    void polygon(const std::vector<Point>& corners, Color color);

private:
    void fill(Color color, double alpha = 1);

    Pen pen_;
    cairo_matrix_t lens_;
    Tones tones_;
};

} // namespace sim
