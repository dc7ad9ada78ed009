// Images for cairo, whose pixels have their components multiplied by alpha.
#pragma once

#include <SDL_rect.h>
#include <cairo.h>
#include <memory>
#include <type_traits>

#include "simulator/video/image.h"

namespace sim {

/// Ends what a C library made.
template <auto end>
using EndWith = std::integral_constant<decltype(end), end>;

using Pen = std::unique_ptr<cairo_t, EndWith<cairo_destroy>>;
using CairoSurface = std::unique_ptr<cairo_surface_t, EndWith<cairo_surface_destroy>>;
using CairoPattern = std::unique_ptr<cairo_pattern_t, EndWith<cairo_pattern_destroy>>;

/// The image's own pixels, which must outlive the surface; those of a constant image are for reading only.
CairoSurface surface_of(const Image& image, cairo_format_t format = CAIRO_FORMAT_ARGB32);

Pen pen_on(Image& image);

/// Lays one image over another, as large as this place on it; shrinking averages the pixels. What falls outside is cut
/// off.
void lay_over(Image& image, const Image& upper, const SDL_Rect& place);

} // namespace sim
