#include "bench/plan.h"

#include "bench/plan_parts.h"
#include "osd_prompt.h"

namespace bench {
namespace {

constexpr SDL_Color background = {10, 10, 10, 128};
constexpr int frame = 5; // pixels, of popups

Step frame_around(const SDL_Rect& box)
{
    return {Fill{white,
                 {{box.x, box.y, box.w, frame},
                  {box.x, box.y + box.h - frame, box.w, frame},
                  {box.x, box.y, frame, box.h},
                  {box.x + box.w - frame, box.y, frame, box.h}}}};
}

struct LayoutPlan {
    tagPAGE_LAYOUT_E layout;
    const SDL_Rect& box;
    bool has_frame;
    Steps (*plan)(const Page&);
};

const LayoutPlan layout_plans[] = {
    {PAGE_LAYOUT_ICON, menu(), false, plan_icons},
    {PAGE_LAYOUT_VERTICAL, menu(), false, plan_vertical},
    {PAGE_LAYOUT_HORIZONTAL, gstMenuMgr.stPopRect, true, plan_popup},
    {PAGE_LAYOUT_VERTICAL_TOLVANE, menu(), false, plan_tolvane},
    {PAGE_LAYOUT_VERTICAL_KETH, menu(), false, plan_paged},
    {PAGE_LAYOUT_HORIZONTAL_KETH, gstMenuMgr.stPopMsgRect, true, plan_message_popup},
};

} // namespace

Plan plan_page(const Page& page)
{
    Plan plan = {gstMenuMgr.pstSurface, &gstMenuMgr.stCanvas, &g_stMutex, {}};
    for (const LayoutPlan& layout : layout_plans) {
        if (layout.layout == page.layout) {
            plan.steps.push_back({Fill{background, {layout.box}}});
            if (layout.has_frame) {
                plan.steps.push_back(frame_around(layout.box));
            }
            const Steps text = layout.plan(page);
            plan.steps.insert(plan.steps.end(), text.begin(), text.end());
        }
    }
    return plan;
}

Plan plan_zoom(const std::string& ratio)
{
    constexpr SDL_Color ground = {0, 0, 0, 128};
    constexpr int size = 328;
    const std::string font_path = OSD_RESOURCE_DIR "/ttf/font.ttf";
    const SDL_Rect& box = gsZoomRatioOsdItem.stCanvas.stMenuRect;
    SDL_Rect text = {};
    TTF_Font* font = TTF_OpenFont(font_path.c_str(), size);
    TTF_SizeUTF8(font, ratio.c_str(), &text.w, &text.h);
    TTF_CloseFont(font);
    text.x = (box.w - text.w) / 2;
    text.y = (box.h - text.h) / 2;
    return {gsZoomRatioOsdItem.pstSurface,
            &gsZoomRatioOsdItem.stCanvas,
            nullptr,
            {{FileTest{"/tmp/.mpp_reloading"}},
             {Fill{ground, {{0, 0, box.w, box.h}}}},
             {LoneText{font_path, size, white, ratio, text}}}};
}

std::string picture_path(const std::string& stem) { return OSD_RESOURCE_DIR "/pic/" + stem + ".bmp"; }

SDL_Rect measure(const std::string& text, int size)
{
    SDL_Rect box = {};
    TTF_SetFontSize(gstMenuMgr.pstFont, size);
    TTF_SizeUTF8(gstMenuMgr.pstFont, text.c_str(), &box.w, &box.h);
    return box;
}

void add_measure(Steps& steps, const std::string& text, int size)
{
    steps.push_back({SizeFont{gstMenuMgr.pstFont, size}});
    steps.push_back({Measure{gstMenuMgr.pstFont, text}});
}

Line place_row(const ListShape& shape, const Row& row, int level, int size, SDL_Color color, const SDL_Rect& above)
{
    const float width = single(menu().w);
    const float height = single(menu().h);
    SDL_Rect label = measure(row.label, size);
    label.x = cut((single(level) * shape.indent + shape.left) * width);
    label.y =
        above.y == 0 ? cut(height * shape.first_gap) : cut(single(above.y) + single(above.h) + height * shape.next_gap);
    const int column = cut(width * shape.value_frame * 0.5f);
    const SDL_Rect value = {cut(width * 0.95f - single(column)), label.y, column, label.h};
    return {row, size, color, label, value};
}

Steps slider(const SDL_Rect& widget)
{
    const int bar = part(widget.w, 0.7f);
    const int block = bar / 20;
    const int block_left = (bar - block) * bar_position / (bar_steps - 1);
    return {{Picture{picture_path("bar"), {0, widget.h / 4, bar, widget.h / 2}, false}},
            {Picture{picture_path("block"), {block_left, 0, block, widget.h}, false}}};
}

Step slider_text(const Line& line)
{
    return {Text{gstMenuMgr.pstFont, line.size, line.color, line.row.value, {part(line.value.w, 0.75f), 0, 0, 0}}};
}

} // namespace bench
