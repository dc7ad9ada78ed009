// A small picture with a name above it and a border.
#pragma once

#include <SDL_ttf.h>
#include <memory>
#include <string>
#include <vector>

#include "pages/data/resource_folder.h"
#include "pages/preview/canvas.h"

namespace pages {

/// Makes tiles of one size. A Menu must be there: it has started the text library.
class TileMaker {
public:
    /// Names are drawn with the menu's regular font. Throws std::runtime_error without it.
    explicit TileMaker(const ResourceFolder& folder);

    /// Of a picture of the whole menu, in either size.
    Canvas tile(const Canvas& picture, const std::string& name) const;

    /// Tiles side by side, row by row.
    static Canvas sheet(const std::vector<Canvas>& tiles, int columns);

private:
    struct Close {
        void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
    };
    std::unique_ptr<TTF_Font, Close> font_;
};

} // namespace pages
