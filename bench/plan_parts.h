// What several plans need.
#pragma once

#include <string>

#include "bench/plan.h"
#include "osd_menu.h"

namespace bench {

inline constexpr SDL_Color white = {255, 255, 255, 255};
inline constexpr SDL_Color grey = {191, 191, 191, 255};
inline constexpr SDL_Color amber = {255, 205, 37, 255};

inline const SDL_Rect& menu() { return gstMenuMgr.stCanvas.stMenuRect; }

// Layouts count in single precision and cut at the end.
inline float single(int length) { return static_cast<float>(length); }
inline int cut(float length) { return static_cast<int>(length); }
inline int part(int length, float fraction) { return cut(single(length) * fraction); }

// A size on the base of 1920 by 1080.
inline int font_size(float base) { return cut(base * gstMenuMgr.f32Scale); }

std::string picture_path(const std::string& stem);

// Width and height of a text in the regular font.
SDL_Rect measure(const std::string& text, int size);

// Sizes the regular font and measures a text, as every line of a page begins.
void add_measure(Steps& steps, const std::string& text, int size);

// A row of a list, and where it goes.
struct Line {
    const Row& row;
    int size;
    SDL_Color color;
    SDL_Rect label;
    SDL_Rect value; // column
};

// Fractions of a list: of the menu's width left, indent and value_frame, of its height the gaps.
struct ListShape {
    float left;
    float indent; // a level
    float first_gap;
    float next_gap;
    float value_frame; // the column has half of it
};

// Places a row below the one above, which is empty for the first row.
Line place_row(const ListShape& shape, const Row& row, int level, int size, SDL_Color color, const SDL_Rect& above);

// Bar and block of a value widget of this size.
Steps slider(const SDL_Rect& widget);

// The value's text right of a slider.
Step slider_text(const Line& line);

} // namespace bench
