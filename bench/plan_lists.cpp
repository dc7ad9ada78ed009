// The vertical list and its sister with a selection arrow, a rule and hints.
#include <algorithm>

#include "bench/plan_parts.h"

namespace bench {
namespace {

constexpr ListShape vertical_shape = {0.01f, 0.01f, 0.01f, 0.02f, 0.89f};
constexpr ListShape tolvane_shape = {0.05f, 0.01f, 0.01f, 0.02f, 0.7f};

const Row title_row = {title, NAME, TITLE_LINE, "", "", ""};

// Both fonts take the size of the row, whichever of them draws it.
void add_sizing(Steps& steps, const Line& line)
{
    steps.push_back({SizeFont{gstMenuMgr.pstFont, line.size}});
    steps.push_back({SizeFont{gstMenuMgr.pstSelectFont, line.size}});
    steps.push_back({Measure{gstMenuMgr.pstFont, line.row.label}});
}

void add_row(Steps& steps, const Line& line)
{
    const Row& row = line.row;
    TTF_Font* font = row.context == NAME ? gstMenuMgr.pstSelectFont : gstMenuMgr.pstFont;
    steps.push_back({Text{font, line.size, line.color, row.label, line.label}});
    if (row.context == NAME_BAR_VAL) {
        Steps parts = slider(line.value);
        parts.push_back(slider_text(line));
        steps.push_back({Widget{line.value, false, parts}});
    } else if (row.context != NAME) {
        steps.push_back({Text{gstMenuMgr.pstFont, line.size, line.color, row.value, line.value}});
    }
}

void add_selection_arrow(Steps& steps, const SDL_Rect& label)
{
    const int width = part(menu().w, 0.03f);
    const int height = part(menu().h, 0.03f);
    const int left = std::max(menu().x, cut(single(label.x - width) - single(menu().w) * 0.01f));
    const SDL_Rect place = {left, label.y + (label.h - height) / 2, width, height};
    steps.push_back({Picture{picture_path("nav_arrow"), place, false}});
}

void add_rule(Steps& steps)
{
    const SDL_Rect& box = menu();
    steps.push_back({Fill{amber,
                          {{cut(single(box.w) * 0.05f + single(box.x)), cut(single(box.h) * 0.9f + single(box.y)),
                            part(box.w, 0.9f), part(box.h, 0.01f)}}}});
}

// The hints of an address, which are the most that there are.
void add_hints(Steps& steps)
{
    struct Hint {
        const char* stem;
        float width;
    };
    constexpr Hint hints[] = {{"nav_move", 0.15f}, {"nav_enter", 0.15f}, {"nav_change_value", 0.29f}};
    const SDL_Rect& box = menu();
    const float gap = single(box.w) * 0.05f;
    SDL_Rect place = {cut(single(box.x) + gap), cut(single(box.h) * 0.93f + single(box.y)), 0, part(box.h, 0.05f)};
    for (const Hint& hint : hints) {
        place.w = part(box.w, hint.width);
        steps.push_back({Picture{picture_path(hint.stem), place, false}});
        place.x = cut(single(place.w) + gap + single(place.x));
    }
}

} // namespace

Steps plan_vertical(const Page& page)
{
    Steps steps;
    SDL_Rect above = {};
    const auto add = [&](const Row& row, int level, float base_size, SDL_Color color) {
        const Line line = place_row(vertical_shape, row, level, font_size(base_size), color, above);
        add_sizing(steps, line);
        add_row(steps, line);
        above = line.label;
    };
    add(title_row, 0, 32.0f, grey);
    for (const Row& row : page.rows) {
        add(row, 1, 28.0f, &row == &page.rows.front() ? white : grey);
    }
    return steps;
}

Steps plan_tolvane(const Page& page)
{
    Steps steps;
    SDL_Rect above = {};
    const int size = font_size(single(part(menu().h, 0.03f)));
    const auto add = [&](const Row& row, int level, SDL_Color color) {
        const bool is_selected = &row == &page.rows.front();
        const Line line = place_row(tolvane_shape, row, level, size, color, above);
        add_sizing(steps, line);
        if (is_selected) {
            add_selection_arrow(steps, line.label);
        }
        add_row(steps, line);
        above = line.label;
    };
    add(title_row, 0, amber);
    for (const Row& row : page.rows) {
        add(row, 1, &row == &page.rows.front() ? white : grey);
    }
    add_rule(steps);
    add_hints(steps);
    return steps;
}

} // namespace bench
