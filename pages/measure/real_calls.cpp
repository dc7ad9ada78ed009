#include "pages/measure/real_calls.h"

#include <SDL2_rotozoom.h>
#include <map>
#include <unordered_map>

#include "pages/measure/recorder.h"
#include "pages/menu/camera.h"

extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
TTF_Font* __real_TTF_OpenFontRW(SDL_RWops* file, int owns, int size);
void __real_TTF_CloseFont(TTF_Font* font);
int __real_TTF_SetFontSize(TTF_Font* font, int size);
int __real_TTF_SizeUTF8(TTF_Font* font, const char* text, int* w, int* h);
SDL_Surface* __real_TTF_RenderUTF8_Blended(TTF_Font* font, const char* text, SDL_Color color);
int __real_SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* part, SDL_Surface* target, SDL_Rect* place);
int __real_SDL_FillRect(SDL_Surface* target, const SDL_Rect* place, Uint32 pixel);
void __real_SDL_FreeSurface(SDL_Surface* surface);
SDL_Surface* __real_SDL_ConvertSurfaceFormat(SDL_Surface* source, Uint32 format, Uint32 flags);
SDL_Surface* __real_SDL_CreateRGBSurfaceWithFormat(Uint32 flags, int w, int h, int depth, Uint32 format);
SDL_Surface* __real_rotozoomSurfaceXY(SDL_Surface* source, double angle, double zoom_x, double zoom_y, int smooth);
}

namespace pages::real {
namespace {

Recorder* recorder = nullptr;
std::unordered_map<TTF_Font*, FontUse> uses;
std::map<std::string, TTF_Font*> kept;

} // namespace

void set_recorder(Recorder* next) { recorder = next; }

const FontUse& use_of(TTF_Font* font) { return uses[font]; }

void close_kept_fonts()
{
    for (const auto& [file, font] : kept) {
        uses.erase(font);
        __real_TTF_CloseFont(font);
    }
    kept.clear();
}

int TTF_SizeUTF8(TTF_Font* font, const char* text, int* w, int* h) { return __real_TTF_SizeUTF8(font, text, w, h); }

void TTF_CloseFont(TTF_Font* font) { __real_TTF_CloseFont(font); }

} // namespace pages::real

using namespace pages::real;

extern "C" {

TTF_Font* __wrap_TTF_OpenFontRW(SDL_RWops* file, int owns, int size)
{
    const std::string path = pages::camera().font_file();
    const auto found = kept.find(path);
    if (recorder != nullptr && found != kept.end()) {
        (void)SDL_RWclose(file);
        return found->second;
    }
    TTF_Font* font = __real_TTF_OpenFontRW(file, owns, size);
    if (font != nullptr) {
        uses[font] = {path, size};
        if (recorder != nullptr) {
            kept[path] = font;
        }
    }
    return font;
}

void __wrap_TTF_CloseFont(TTF_Font* font)
{
    if (recorder == nullptr) {
        uses.erase(font);
        __real_TTF_CloseFont(font);
    }
}

int __wrap_TTF_SetFontSize(TTF_Font* font, int size)
{
    uses[font].size = size;
    return recorder != nullptr ? 0 : __real_TTF_SetFontSize(font, size);
}

int __wrap_TTF_SizeUTF8(TTF_Font* font, const char* text, int* w, int* h)
{
    return recorder != nullptr ? recorder->size(font, text, w, h) : __real_TTF_SizeUTF8(font, text, w, h);
}

SDL_Surface* __wrap_TTF_RenderUTF8_Blended(TTF_Font* font, const char* text, SDL_Color color)
{
    return recorder != nullptr ? recorder->text(font, text) : __real_TTF_RenderUTF8_Blended(font, text, color);
}

int __wrap_SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* part, SDL_Surface* target, SDL_Rect* place)
{
    if (recorder == nullptr) {
        return __real_SDL_UpperBlit(source, part, target, place);
    }
    if (source == nullptr) {
        return -1;
    }
    recorder->blit(source, target, place);
    return 0;
}

int __wrap_SDL_FillRect(SDL_Surface* target, const SDL_Rect* place, Uint32 pixel)
{
    if (recorder == nullptr) {
        return __real_SDL_FillRect(target, place, pixel);
    }
    recorder->fill(target, *place);
    return 0;
}

void __wrap_SDL_FreeSurface(SDL_Surface* surface)
{
    if (recorder != nullptr) {
        recorder->forget(surface);
    }
    __real_SDL_FreeSurface(surface);
}

SDL_Surface* __wrap_SDL_ConvertSurfaceFormat(SDL_Surface* source, Uint32 format, Uint32 flags)
{
    return recorder != nullptr ? recorder->copy(source, format)
                               : __real_SDL_ConvertSurfaceFormat(source, format, flags);
}

SDL_Surface* __wrap_SDL_CreateRGBSurfaceWithFormat(Uint32 flags, int w, int h, int depth, Uint32 format)
{
    return recorder != nullptr ? recorder->blank(w, h, format)
                               : __real_SDL_CreateRGBSurfaceWithFormat(flags, w, h, depth, format);
}

SDL_Surface* __wrap_rotozoomSurfaceXY(SDL_Surface* source, double angle, double zoom_x, double zoom_y, int smooth)
{
    return recorder != nullptr
               ? recorder->picture(source, static_cast<int>(source->w * zoom_x), static_cast<int>(source->h * zoom_y))
               : __real_rotozoomSurfaceXY(source, angle, zoom_x, zoom_y, smooth);
}

// NOLINTEND(bugprone-reserved-identifier)
} // extern "C"
