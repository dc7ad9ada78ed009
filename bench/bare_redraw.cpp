#include "bench/bare_redraw.h"

#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <unistd.h>

#include "platform/media_service.h"

namespace bench {
namespace {

constexpr SDL_Color white = {255, 255, 255, 255};
constexpr SDL_Color grey = {191, 191, 191, 255};

int part(int length, float fraction) { return static_cast<int>(static_cast<float>(length) * fraction); }

SDL_Surface* make_text(TTF_Font* font, const std::string& text, int size, SDL_Color color)
{
    TTF_SetFontSize(font, size);
    return TTF_RenderUTF8_Blended(font, text.c_str(), color);
}

void put(SDL_Surface* from, SDL_Surface* onto, SDL_Rect place) { SDL_UpperBlit(from, nullptr, onto, &place); }

SDL_Surface* make_picture(const std::string& path, int width, int height)
{
    if (access(path.c_str(), F_OK) != 0) {
        return nullptr;
    }
    SDL_Surface* raw = IMG_Load(path.c_str());
    SDL_Surface* scaled = rotozoomSurfaceXY(raw, 0.0, static_cast<double>(width) / raw->w,
                                            static_cast<double>(height) / raw->h, SMOOTHING_ON);
    SDL_Surface* picture = SDL_ConvertSurfaceFormat(scaled, SDL_PIXELFORMAT_ARGB4444, 0);
    SDL_FreeSurface(raw);
    SDL_FreeSurface(scaled);
    return picture;
}

} // namespace

BareRedraw::BareRedraw(const std::vector<Row>& rows)
    : bar_path_(OSD_RESOURCE_DIR "/pic/bar.bmp"), block_path_(OSD_RESOURCE_DIR "/pic/block.bmp")
{
    plan_line({title, NAME, ""}, 32, 0, false);
    for (const Row& row : rows) {
        plan_line(row, 28, 1, lines_.size() == 1); // the first row is the selected one
    }
}

void BareRedraw::plan_line(const Row& row, int base_size, int level, bool is_bright)
{
    const SDL_Rect& menu = gstMenuMgr.stCanvas.stMenuRect;
    const auto height = static_cast<float>(menu.h);
    Line line = {row, part(base_size, gstMenuMgr.f32Scale), is_bright ? white : grey, {}, {}};
    TTF_SetFontSize(gstMenuMgr.pstFont, line.size);
    TTF_SizeUTF8(gstMenuMgr.pstFont, row.label.c_str(), &line.label.w, &line.label.h);
    line.label.x = part(menu.w, static_cast<float>(level) * 0.01f + 0.01f);
    if (lines_.empty()) {
        line.label.y = part(menu.h, 0.01f);
    } else {
        const SDL_Rect& above = lines_.back().label;
        line.label.y = static_cast<int>(static_cast<float>(above.y + above.h) + height * 0.02f);
    }
    const int column = static_cast<int>(static_cast<float>(menu.w) * 0.89f * 0.5f);
    const int left = static_cast<int>(static_cast<float>(menu.w) * 0.95f - static_cast<float>(column));
    line.value = {left, line.label.y, column, line.label.h};
    lines_.push_back(line);
}

void BareRedraw::draw() const
{
    SDL_Surface* canvas = gstMenuMgr.pstSurface;
    pthread_mutex_lock(&g_stMutex);
    const Uint32 background = SDL_MapRGBA(canvas->format, 10, 10, 10, 128);
    SDL_FillRect(canvas, &gstMenuMgr.stCanvas.stMenuRect, background);
    for (const Line& line : lines_) {
        draw_line(line);
    }
    MPP_MENU_UpdateCanvasToAllChns(1, &gstMenuMgr.stCanvas);
    pthread_mutex_unlock(&g_stMutex);
}

void BareRedraw::draw_line(const Line& line) const
{
    int width = 0;
    int height = 0;
    TTF_SetFontSize(gstMenuMgr.pstFont, line.size);
    TTF_SetFontSize(gstMenuMgr.pstSelectFont, line.size);
    TTF_SizeUTF8(gstMenuMgr.pstFont, line.row.label.c_str(), &width, &height);
    TTF_Font* font = line.row.context == NAME ? gstMenuMgr.pstSelectFont : gstMenuMgr.pstFont;
    SDL_Surface* label = make_text(font, line.row.label, line.size, line.color);
    put(label, gstMenuMgr.pstSurface, line.label);
    if (line.row.context != NAME) {
        draw_value(line);
    }
    SDL_FreeSurface(label);
}

void BareRedraw::draw_value(const Line& line) const
{
    SDL_Surface* value = line.row.context == NAME_BAR_VAL
                             ? make_bar(line)
                             : make_text(gstMenuMgr.pstFont, line.row.value, line.size, line.color);
    put(value, gstMenuMgr.pstSurface, line.value);
    SDL_FreeSurface(value);
}

SDL_Surface* BareRedraw::make_bar(const Line& line) const
{
    const int width = line.value.w;
    const int height = line.value.h;
    const int bar_width = part(width, 0.7f);
    const int block_width = bar_width / 20;
    SDL_Surface* widget = SDL_CreateRGBSurfaceWithFormat(0, width, height, 16, SDL_PIXELFORMAT_ARGB4444);
    SDL_Surface* bar = make_picture(bar_path_, bar_width, height / 2);
    put(bar, widget, {0, height / 4, bar_width, height / 2});
    SDL_Surface* block = make_picture(block_path_, block_width, height);
    put(block, widget, {(bar_width - block_width) * bar_position / (bar_steps - 1), 0, block_width, height});
    SDL_Surface* text = make_text(gstMenuMgr.pstFont, line.row.value, line.size, line.color);
    put(text, widget, {part(width, 0.75f), 0, 0, 0});
    SDL_FreeSurface(text);
    SDL_FreeSurface(block);
    SDL_FreeSurface(bar);
    return widget;
}

} // namespace bench
