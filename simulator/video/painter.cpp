#include "simulator/video/painter.h"

namespace sim {
namespace {

double share(Color color, int shift) { return component(color, shift) / 255.0; }

} // namespace

Painter::Painter(Image& image, const cairo_matrix_t& lens, const Tones& tones)
    : pen_(pen_on(image)), lens_(lens), tones_(tones)
{
    cairo_set_matrix(pen_.get(), &lens_);
}

void Painter::stand_at(Point place, double direction)
{
    cairo_set_matrix(pen_.get(), &lens_);
    cairo_translate(pen_.get(), place.x, place.y);
    cairo_scale(pen_.get(), direction, 1);
}

void Painter::fill(Color color, double alpha)
{
    const Color shown = toned(color, tones_);
    cairo_set_source_rgba(pen_.get(), share(shown, 16), share(shown, 8), share(shown, 0), alpha);
    cairo_fill(pen_.get());
}

void Painter::box(double left, double top, double width, double height, Color color)
{
    cairo_rectangle(pen_.get(), left, top, width, height);
    fill(color);
}

void Painter::gradient_box(double left, double top, double width, double height, Color upper, Color lower)
{
    const CairoPattern gradient(cairo_pattern_create_linear(0, top, 0, top + height));
    for (const Color color : {upper, lower}) {
        const Color shown = toned(color, tones_);
        cairo_pattern_add_color_stop_rgb(gradient.get(), color == lower ? 1 : 0, share(shown, 16), share(shown, 8),
                                         share(shown, 0));
    }
    cairo_set_source(pen_.get(), gradient.get());
    cairo_rectangle(pen_.get(), left, top, width, height);
    cairo_fill(pen_.get());
}

void Painter::ellipse(Point center, double radius_x, double radius_y, Color color, double alpha)
{
    cairo_save(pen_.get());
    cairo_translate(pen_.get(), center.x, center.y);
    cairo_scale(pen_.get(), radius_x, radius_y);
    cairo_arc(pen_.get(), 0, 0, 1, 0, 6.2832);
    cairo_restore(pen_.get());
    fill(color, alpha);
}

void Painter::polygon(const std::vector<Point>& corners, Color color)
{
    for (const Point& corner : corners) {
        cairo_line_to(pen_.get(), corner.x, corner.y);
    }
    fill(color);
}

} // namespace sim
