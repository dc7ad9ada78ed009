// The layouts in cells: the icon grid and the popups.
#include "bench/plan_parts.h"

namespace bench {
namespace {

// The share of one cell in a length, of which margins and the gaps between cells take fractions.
int cell_length(int whole, float margins, float gap)
{
    const float length = single(whole);
    const int inside = cut(length - length * margins);
    return cut(single(inside) - length * (single(cells_per_line - 1) * gap)) / cells_per_line;
}

void add_cell(Steps& steps, const Row& row, const SDL_Rect& cell, bool is_selected)
{
    const int size = font_size(28.0f);
    const SDL_Rect picture = {cell.x, cell.y, cell.w, part(cell.h, 0.7f)};
    SDL_Rect caption = measure(row.label, size);
    caption.x = cell.x + (cell.w - caption.w) / 2;
    caption.y = cut(single(cell.h) * 0.025f + single(cell.y + picture.h));
    add_measure(steps, row.label, size);
    steps.push_back({Picture{picture_path(row.picture), picture, false}});
    steps.push_back({Text{gstMenuMgr.pstFont, size, grey, row.label, caption}});
    if (is_selected) {
        const int top = cut(single(cell.h) * 0.22500001f + single(caption.y));
        steps.push_back({Fill{std::nullopt, {{caption.x, top, caption.w, part(cell.h, 0.02f)}}}});
    }
}

// One text in the middle of a part of the popup. Returns its place.
SDL_Rect add_centred(Steps& steps, const std::string& text, int size, SDL_Color color, const SDL_Rect& cell)
{
    SDL_Rect place = measure(text, size);
    place.x = cell.x + (cell.w - place.w) / 2;
    place.y = cell.y;
    add_measure(steps, text, size);
    steps.push_back({Text{gstMenuMgr.pstFont, size, color, text, place}});
    return place;
}

// Where a line stands that is a fraction of the popup's height below the text above.
int below(const SDL_Rect& above, const SDL_Rect& box, float gap)
{
    return cut(single(box.h) * gap + single(above.y + above.h));
}

SDL_Rect add_popup_title(Steps& steps, const SDL_Rect& box, int size)
{
    const int top = cut(single(box.h) * 0.15f + single(box.y));
    return add_centred(steps, title, size, grey, {box.x, top, box.w, 0});
}

// The answers side by side, the first one selected.
void add_answers(Steps& steps, const Page& page, const SDL_Rect& box, int size, int top)
{
    const int width = box.w / static_cast<int>(page.rows.size());
    SDL_Rect cell = {box.x, top, width, 0};
    for (const Row& row : page.rows) {
        add_centred(steps, row.label, size, &row == &page.rows.front() ? white : grey, cell);
        cell.x += width;
    }
}

} // namespace

Steps plan_icons(const Page& page)
{
    Steps steps;
    const int left = part(menu().w, 0.05f);
    SDL_Rect cell = {left, part(menu().h, 0.02f), cell_length(menu().w, 0.1f, 0.1f),
                     cell_length(menu().h, 0.04f, 0.05f)};
    for (size_t i = 0; i < page.rows.size(); i++) {
        add_cell(steps, page.rows[i], cell, i == 0);
        if ((i + 1) % cells_per_line == 0) {
            cell.x = left;
            cell.y = cut(single(menu().h) * 0.05f + single(cell.y + cell.h));
        } else {
            cell.x = cut(single(menu().w) * 0.1f + single(cell.x + cell.w));
        }
    }
    return steps;
}

Steps plan_popup(const Page& page)
{
    const SDL_Rect& box = gstMenuMgr.stPopRect;
    const int size = font_size(32.0f);
    Steps steps;
    const SDL_Rect heading = add_popup_title(steps, box, size);
    add_answers(steps, page, box, size, below(heading, box, 0.2f));
    return steps;
}

Steps plan_message_popup(const Page& page)
{
    const SDL_Rect& box = gstMenuMgr.stPopMsgRect;
    const int size = font_size(28.0f);
    Steps steps;
    const SDL_Rect heading = add_popup_title(steps, box, size);
    const SDL_Rect line = add_centred(steps, message, size, grey, {box.x, below(heading, box, 0.1f), box.w, 0});
    add_answers(steps, page, box, size, below(line, box, 0.1f));
    return steps;
}

} // namespace bench
