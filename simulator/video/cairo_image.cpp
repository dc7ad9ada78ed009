#include "simulator/video/cairo_image.h"

namespace sim {

CairoSurface surface_of(const Image& image, cairo_format_t format)
{
    auto* bytes = reinterpret_cast<unsigned char*>(const_cast<Color*>(image.pixels.data()));
    return CairoSurface(
        cairo_image_surface_create_for_data(bytes, format, image.size.width, image.size.height, image.size.width * 4));
}

Pen pen_on(Image& image) { return Pen(cairo_create(surface_of(image).get())); }

void lay_over(Image& image, const Image& upper, const SDL_Rect& place)
{
    const Pen pen = pen_on(image);
    cairo_rectangle(pen.get(), place.x, place.y, place.w, place.h);
    cairo_translate(pen.get(), place.x, place.y);
    cairo_scale(pen.get(), static_cast<double>(place.w) / upper.size.width,
                static_cast<double>(place.h) / upper.size.height);
    cairo_set_source_surface(pen.get(), surface_of(upper).get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(pen.get()), CAIRO_EXTEND_PAD); // no edge shines through
    cairo_fill(pen.get());
}

} // namespace sim
