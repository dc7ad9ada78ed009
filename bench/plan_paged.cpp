// The paged list: turn arrows, a title over a rule, values between arrows or on a dimmed bar, buttons with a picture.
#include "bench/plan_parts.h"

namespace bench {
namespace {

constexpr ListShape paged_shape = {0.045f, 0.025f, 0.14f, 0.01f, 0.84f};

Step white_line(const SDL_Rect& place) { return {Fill{white, {place}}}; }

void add_turn_arrows(Steps& steps)
{
    const int width = part(menu().w, 0.07f);
    const int height = part(menu().h, 0.07f);
    const SDL_Rect place = {cut(single(menu().w) - single(width) * 1.07f),
                            cut(single(menu().h) - single(height) * 1.07f), width, height};
    steps.push_back({Picture{picture_path("arrow_all"), place, false}});
}

// Returns the rule, below which the rows begin.
SDL_Rect add_title(Steps& steps, int size)
{
    const std::string text = std::string(title) + "  " + page_number;
    SDL_Rect place = measure(text, size);
    place.x = part(menu().w, 0.07f);
    place.y = part(menu().h, 0.015f);
    add_measure(steps, text, size);
    steps.push_back({Text{gstMenuMgr.pstFont, size, white, text, place}});
    const SDL_Rect rule = {place.x, place.h + 2 * place.y, part(menu().w, 0.86f), part(menu().h, 0.01f)};
    steps.push_back(white_line(rule));
    return rule;
}

// The line above a button. Returns it: the row follows.
SDL_Rect add_separator(Steps& steps, const SDL_Rect& above)
{
    const int left = static_cast<int>(menu().w * 0.07);
    const SDL_Rect line = {left, static_cast<int>(menu().h * 0.02 + (above.y + 2 * above.h)), menu().w - 2 * left,
                           static_cast<int>(menu().h * 0.005)};
    steps.push_back(white_line(line));
    return line;
}

void add_button_picture(Steps& steps, Line& line, bool is_dim)
{
    const SDL_Rect place = {line.label.x, static_cast<int>(menu().h * 0.01 + line.label.y), part(menu().w, 0.04f),
                            part(menu().h, 0.04f)};
    steps.push_back({Picture{picture_path(line.row.picture), place, is_dim}});
    line.label.x += place.w; // the text stands behind it
}

void add_enter_arrow(Steps& steps, const SDL_Rect& label, bool is_dim)
{
    const SDL_Rect place = {cut(single(label.x) * 1.19f + single(label.w)),
                            cut(single(label.h) * 0.37f + single(label.y)), part(menu().w, 0.03f),
                            part(menu().h, 0.03f)};
    steps.push_back({Picture{picture_path("nav_arrow"), place, is_dim}});
}

// Bar and block are dimmed together, the text beside them is not.
void add_bar(Steps& steps, const Line& line, bool is_dim)
{
    const SDL_Rect whole = {0, 0, line.value.w, line.value.h};
    steps.push_back({Widget{line.value, false, {{Widget{whole, is_dim, slider(whole)}}, slider_text(line)}}});
}

void add_value_between_arrows(Steps& steps, const Line& line, bool is_dim)
{
    const int width = part(line.value.w, 0.09f);
    const int height = part(line.value.h, 0.42f);
    const int text_left = part(line.value.w, 0.11f);
    const int right = cut(single(line.value.w) * 0.13f + single(measure(line.row.value, line.size).w));
    steps.push_back({Measure{gstMenuMgr.pstFont, line.row.value}});
    steps.push_back({Widget{line.value,
                            false,
                            {{Picture{picture_path("arrow_left"), {0, height, width, height}, is_dim}},
                             {Text{gstMenuMgr.pstFont, line.size, line.color, line.row.value, {text_left, 0, 0, 0}}},
                             {Picture{picture_path("arrow_right"), {right, height, width, height}, is_dim}}}}});
}

void add_value(Steps& steps, const Line& line, bool is_dim)
{
    if (line.row.context == NAME_BAR_VAL) {
        add_bar(steps, line, is_dim);
    } else if (line.row.context == NAME_VAL && line.row.attribute != STATUS) {
        add_value_between_arrows(steps, line, is_dim);
    } else if (line.row.context != NAME) {
        steps.push_back({Text{gstMenuMgr.pstFont, line.size, line.color, line.row.value, line.value}});
    }
}

// Returns the place of the row's label.
SDL_Rect add_row(Steps& steps, const Row& row, int size, bool is_dim, SDL_Rect above)
{
    if (row.attribute == CONFIRM_POP_BTN) {
        above = add_separator(steps, above);
    }
    Line line = place_row(paged_shape, row, 1, size, is_dim ? grey : white, above);
    const SDL_Rect label = line.label;
    add_measure(steps, row.label, size);
    if (row.attribute == CONFIRM_POP_BTN) {
        add_button_picture(steps, line, is_dim);
    }
    steps.push_back({Text{gstMenuMgr.pstFont, size, line.color, row.label, line.label}});
    if (row.attribute == SUBPAGE) {
        add_enter_arrow(steps, label, is_dim);
    }
    add_value(steps, line, is_dim);
    return label;
}

} // namespace

Steps plan_paged(const Page& page)
{
    const int size = font_size(28.0f);
    Steps steps;
    add_turn_arrows(steps);
    SDL_Rect above = add_title(steps, size);
    for (const Row& row : page.rows) {
        const bool is_bright = &row == &page.rows.front() || row.attribute == STATUS;
        above = add_row(steps, row, size, !is_bright, above);
    }
    return steps;
}

} // namespace bench
