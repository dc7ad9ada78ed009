#include "pages/preview/tile.h"

#include <algorithm>
#include <stdexcept>

namespace pages {
namespace {

constexpr int picture_width = 480; // divides the menu's width in both sizes
constexpr int border = 2;
constexpr int gap = 12;         // round the tile
constexpr int name_height = 56; // two lines
constexpr int font_size = 18;
constexpr Pixel paper = 0xFFF4F5F7;
constexpr Pixel border_color = 0xFF39424E;
constexpr SDL_Color ink = {26, 34, 44, 255};

} // namespace

TileMaker::TileMaker(const ResourceFolder& folder) : font_(TTF_OpenFont((folder.fonts / "font.ttf").c_str(), font_size))
{
    if (font_ == nullptr) {
        throw std::runtime_error(std::string("names of pages can't be drawn: ") + TTF_GetError());
    }
}

Canvas TileMaker::tile(const Canvas& picture, const std::string& name) const
{
    const Canvas small = picture.smaller(picture.width() / picture_width);
    const SDL_Rect frame = {gap, gap + name_height, small.width() + 2 * border, small.height() + 2 * border};
    Canvas tile(frame.w + 2 * gap, frame.y + frame.h + gap, paper);
    tile.fill(frame, border_color);
    tile.put(small, frame.x + border, frame.y + border);
    SDL_Surface* words =
        TTF_RenderUTF8_Blended_Wrapped(font_.get(), name.c_str(), ink, static_cast<Uint32>(small.width()));
    if (words == nullptr) {
        throw std::runtime_error("the name '" + name + "' can't be drawn: " + TTF_GetError());
    }
    SDL_Rect part = {0, 0, words->w, std::min(words->h, name_height)};
    SDL_Rect place = {frame.x, frame.y - part.h - border, 0, 0}; // right above the border
    (void)SDL_BlitSurface(words, &part, tile.surface(), &place);
    SDL_FreeSurface(words);
    return tile;
}

Canvas TileMaker::sheet(const std::vector<Canvas>& tiles, int columns)
{
    const int count = static_cast<int>(tiles.size());
    const int width = tiles.empty() ? 1 : tiles.front().width();
    const int height = tiles.empty() ? 1 : tiles.front().height();
    columns = std::max(1, std::min(columns, count));
    Canvas sheet(columns * width, std::max(1, (count + columns - 1) / columns) * height, paper);
    for (int i = 0; i < count; ++i) {
        sheet.put(tiles[static_cast<std::size_t>(i)], i % columns * width, i / columns * height);
    }
    return sheet;
}

} // namespace pages
