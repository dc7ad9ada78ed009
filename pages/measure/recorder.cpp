#include "pages/measure/recorder.h"

#include <algorithm>
#include <stdexcept>

#include "pages/measure/letters.h"
#include "pages/measure/real_calls.h"
#include "pages/menu/camera.h"

namespace pages {
namespace {

SDL_Rect cut(const SDL_Rect& rect, const SDL_Rect& bounds)
{
    SDL_Rect left{};
    return SDL_IntersectRect(&rect, &bounds, &left) == SDL_TRUE ? left : SDL_Rect{rect.x, rect.y, 0, 0};
}

/// Sends the library's calls to a recorder for as long as it lives.
struct Listening {
    explicit Listening(Recorder* recorder)
    {
        real::set_recorder(recorder);
        camera().set_blank_pictures(true);
    }
    ~Listening()
    {
        camera().set_blank_pictures(false);
        real::set_recorder(nullptr);
    }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
};

SDL_Rect moved(const SDL_Rect& rect, const SDL_Rect& by) { return {rect.x + by.x, rect.y + by.y, rect.w, rect.h}; }

} // namespace

void TextSizes::Close::operator()(TTF_Font* font) const { real::TTF_CloseFont(font); }

TextSizes::Size TextSizes::of(const std::string& file, int font_size, const char* text)
{
    auto& font = fonts_[{file, font_size}];
    if (font == nullptr) {
        font.reset(TTF_OpenFont(file.c_str(), font_size));
        if (font == nullptr) {
            throw std::runtime_error(file + " in size " + std::to_string(font_size) + ": " + TTF_GetError());
        }
    }
    const auto [entry, added] = sizes_.try_emplace({font.get(), text}, Size{0, 0, 0, 0});
    if (added) {
        entry->second = measure(font.get(), text);
    }
    return entry->second;
}

TextSizes::Size TextSizes::measure(TTF_Font* font, const char* text)
{
    Size size{0, 0, 0, 0};
    (void)real::TTF_SizeUTF8(font, text, &size.w, &size.h); // 0 where it can't be measured
    size.top = size.h;
    for_each_letter(text, [&](char32_t letter, std::string_view) {
        int lowest = 0;
        int highest = 0;
        if (TTF_GlyphMetrics32(font, letter, nullptr, nullptr, &lowest, &highest, nullptr) == 0 && highest > lowest) {
            size.top = std::min(size.top, TTF_FontAscent(font) - highest);
            size.bottom = std::max(size.bottom, TTF_FontAscent(font) - lowest);
        }
    });
    return size;
}

Recorder::Recorder() = default;

Recorder::~Recorder() { real::close_kept_fonts(); }

std::vector<Mark> Recorder::draw(Menu& menu)
{
    sheets_.clear();
    const Listening listening(this);
    const SDL_Surface* surface = menu.draw();
    return std::move(sheets_[surface]);
}

SDL_Surface* Recorder::blank(int w, int h, std::uint32_t format)
{
    static std::uint32_t no_pixels; // is never written to: whatever would do so is recorded
    return SDL_CreateRGBSurfaceWithFormatFrom(&no_pixels, w, h, SDL_BITSPERPIXEL(format), w * 4, format);
}

TextSizes::Size Recorder::size(TTF_Font* font, const char* words)
{
    const real::FontUse& use = real::use_of(font);
    return sizes_.of(use.file, use.size, words);
}

int Recorder::size(TTF_Font* font, const char* words, int* w, int* h)
{
    const TextSizes::Size size = this->size(font, words);
    if (w != nullptr) {
        *w = size.w;
    }
    if (h != nullptr) {
        *h = size.h;
    }
    return 0;
}

SDL_Surface* Recorder::text(TTF_Font* font, const char* words)
{
    const TextSizes::Size size = this->size(font, words);
    if (size.w == 0) {
        return nullptr; // as the real one does
    }
    const SDL_Rect rect{0, 0, size.w, size.h};
    const SDL_Rect ink{0, size.top, size.w, std::max(0, size.bottom - size.top)};
    SDL_Surface* surface = blank(rect.w, rect.h, SDL_PIXELFORMAT_ARGB8888);
    sheets_[surface] = {{MarkKind::Text, words, words, rect, ink, rect}};
    return surface;
}

SDL_Surface* Recorder::picture(const SDL_Surface* source, int w, int h)
{
    SDL_Surface* surface = blank(w, h, SDL_PIXELFORMAT_ARGB8888);
    const SDL_Rect rect{0, 0, w, h};
    sheets_[surface] = {{MarkKind::Picture, static_cast<const char*>(source->userdata), nullptr, rect, rect, rect}};
    return surface;
}

SDL_Surface* Recorder::copy(const SDL_Surface* source, std::uint32_t format)
{
    SDL_Surface* surface = blank(source->w, source->h, format);
    sheets_[surface] = sheets_[source];
    return surface;
}

void Recorder::blit(const SDL_Surface* source, const SDL_Surface* target, SDL_Rect* place)
{
    const SDL_Rect bounds{0, 0, target->w, target->h};
    const SDL_Rect whole{place->x, place->y, source->w, source->h};
    const std::vector<Mark> marks = sheets_[source];
    const bool is_widget = marks.size() > 1;
    for (Mark mark : marks) {
        mark.rect = moved(mark.rect, whole);
        mark.ink = moved(mark.ink, whole);
        mark.seen = cut(moved(mark.seen, whole), bounds);
        mark.frame = is_widget ? whole : mark.frame;
        sheets_[target].push_back(mark);
    }
    *place = cut(whole, bounds);
}

void Recorder::fill(const SDL_Surface* target, const SDL_Rect& place)
{
    const SDL_Rect bounds{0, 0, target->w, target->h};
    sheets_[target].push_back({MarkKind::Fill, "", nullptr, place, place, cut(place, bounds)});
}

} // namespace pages
