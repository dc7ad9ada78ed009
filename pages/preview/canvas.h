// Pictures that are drawn here, opaque, and their PNG files.
#pragma once

#include <SDL.h>
#include <filesystem>
#include <memory>
#include <string>

namespace pages {

/// ARGB, 8 bits a part.
using Pixel = std::uint32_t;

class Canvas {
public:
    /// Throws std::runtime_error when there is no memory for it.
    Canvas(int width, int height, Pixel color);
    /// Reads a PNG file; throws BadInput.
    explicit Canvas(const std::filesystem::path& file);

    int width() const { return surface_->w; }
    int height() const { return surface_->h; }
    Pixel* row(int y) { return pixels_of(*surface_, y); }
    const Pixel* row(int y) const { return pixels_of(*surface_, y); }
    SDL_Surface* surface() { return surface_.get(); }

    /// Lays what is half transparent over it, at the top left.
    void lay_over(const SDL_Surface& menu);
    void put(const Canvas& picture, int left, int top);
    void fill(const SDL_Rect& rect, Pixel color);

    /// A picture whose pixels are the means of squares of this one.
    Canvas smaller(int side) const;

    /// Writes a PNG file, on any thread. Throws BadInput.
    void save(const std::filesystem::path& file) const;
    /// The content of a PNG file.
    std::string png() const;

    static Pixel* pixels_of(const SDL_Surface& surface, int y)
    {
        return reinterpret_cast<Pixel*>(static_cast<char*>(surface.pixels) +
                                        static_cast<std::ptrdiff_t>(y) * surface.pitch);
    }

private:
    struct Free {
        void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    };
    std::unique_ptr<SDL_Surface, Free> surface_;
};

/// What the menu stands on here: calm as a landscape in the video, bright above and dark below.
Canvas landscape(int width, int height);

} // namespace pages
