// The yardstick: exactly the calls of SDL and its companions that a redraw of the page must make, and nothing around
// them. Places, sizes and texts are worked out beforehand.
#pragma once

#include <string>
#include <vector>

#include "bench/page.h"
#include "osd_menu.h"

namespace bench {

class BareRedraw {
public:
    // Plans the redraw for the library as it was started; draws on its surface with its fonts.
    explicit BareRedraw(const std::vector<Row>& rows);

    // Draws the page and pushes it.
    void draw() const;

private:
    struct Line {
        Row row;
        int size;
        SDL_Color color;
        SDL_Rect label; // place, and size of the text
        SDL_Rect value; // column
    };

    void plan_line(const Row& row, int base_size, int level, bool is_bright);
    void draw_line(const Line& line) const;
    void draw_value(const Line& line) const;
    SDL_Surface* make_bar(const Line& line) const;

    std::vector<Line> lines_;
    std::string bar_path_;
    std::string block_path_;
};

} // namespace bench
