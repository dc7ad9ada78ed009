// The functions below stand before those of the shared libraries, as the program's own symbols come first. Each counts,
// then calls the function that it hides. What SDL_ttf calls of SDL in turn isn't counted.
#include "bench/call_count.h"

#include <SDL.h>
#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <SDL_ttf.h>
#include <dlfcn.h>

#include <cstdlib>

#include "bench/camera.h"

namespace bench {
namespace {

bool is_counting = false;
int depth = 0; // calls under way into SDL and its companions
Counts counts;

void count_allocation()
{
    if (is_counting && depth == 0 && !in_service) {
        counts.allocations++;
    }
}

// Calls the hidden function, counted by name when the call comes from outside. The own function tells the hidden ones
// apart.
template <auto* own, typename... Arguments>
auto pass_on(const char* name, Arguments... arguments)
{
    static const auto hidden = reinterpret_cast<decltype(own)>(dlsym(RTLD_NEXT, name));
    struct Inside {
        Inside() { depth++; }
        ~Inside() { depth--; }
    } const inside;
    if (is_counting && depth == 1) {
        counts.calls[name]++;
    }
    return hidden(arguments...);
}

} // namespace

void start_counting()
{
    counts = {};
    is_counting = true;
}

Counts stop_counting()
{
    is_counting = false;
    return counts;
}

} // namespace bench

using bench::pass_on;

extern "C" {

int TTF_SetFontSize(TTF_Font* font, int size) { return pass_on<&TTF_SetFontSize>("TTF_SetFontSize", font, size); }

int TTF_SizeUTF8(TTF_Font* font, const char* text, int* width, int* height)
{
    return pass_on<&TTF_SizeUTF8>("TTF_SizeUTF8", font, text, width, height);
}

SDL_Surface* TTF_RenderUTF8_Blended(TTF_Font* font, const char* text, SDL_Color color)
{
    return pass_on<&TTF_RenderUTF8_Blended>("TTF_RenderUTF8_Blended", font, text, color);
}

TTF_Font* TTF_OpenFontRW(SDL_RWops* file, int close_file, int size)
{
    return pass_on<&TTF_OpenFontRW>("TTF_OpenFontRW", file, close_file, size);
}

void TTF_CloseFont(TTF_Font* font) { pass_on<&TTF_CloseFont>("TTF_CloseFont", font); }

SDL_RWops* SDL_RWFromConstMem(const void* bytes, int size)
{
    return pass_on<&SDL_RWFromConstMem>("SDL_RWFromConstMem", bytes, size);
}

void SDL_FreeRW(SDL_RWops* file) { pass_on<&SDL_FreeRW>("SDL_FreeRW", file); }

SDL_Surface* IMG_Load(const char* file) { return pass_on<&IMG_Load>("IMG_Load", file); }

SDL_Surface* rotozoomSurfaceXY(SDL_Surface* source, double angle, double zoom_x, double zoom_y, int smooth)
{
    return pass_on<&rotozoomSurfaceXY>("rotozoomSurfaceXY", source, angle, zoom_x, zoom_y, smooth);
}

SDL_Surface* SDL_CreateRGBSurfaceWithFormat(Uint32 flags, int width, int height, int depth, Uint32 format)
{
    return pass_on<&SDL_CreateRGBSurfaceWithFormat>("SDL_CreateRGBSurfaceWithFormat", flags, width, height, depth,
                                                    format);
}

SDL_Surface* SDL_ConvertSurfaceFormat(SDL_Surface* source, Uint32 format, Uint32 flags)
{
    return pass_on<&SDL_ConvertSurfaceFormat>("SDL_ConvertSurfaceFormat", source, format, flags);
}

void SDL_FreeSurface(SDL_Surface* surface) { pass_on<&SDL_FreeSurface>("SDL_FreeSurface", surface); }

int SDL_SetSurfaceAlphaMod(SDL_Surface* surface, Uint8 alpha)
{
    return pass_on<&SDL_SetSurfaceAlphaMod>("SDL_SetSurfaceAlphaMod", surface, alpha);
}

int SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* from, SDL_Surface* target, SDL_Rect* to)
{
    return pass_on<&SDL_UpperBlit>("SDL_UpperBlit", source, from, target, to);
}

int SDL_FillRect(SDL_Surface* target, const SDL_Rect* rect, Uint32 color)
{
    return pass_on<&SDL_FillRect>("SDL_FillRect", target, rect, color);
}

Uint32 SDL_MapRGBA(const SDL_PixelFormat* format, Uint8 red, Uint8 green, Uint8 blue, Uint8 alpha)
{
    return pass_on<&SDL_MapRGBA>("SDL_MapRGBA", format, red, green, blue, alpha);
}

// The heap of the C library under the names that it keeps for such a purpose.
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);

void* malloc(size_t size)
{
    bench::count_allocation();
    return __libc_malloc(size);
}

void* calloc(size_t count, size_t size)
{
    bench::count_allocation();
    return __libc_calloc(count, size);
}

void* realloc(void* block, size_t size)
{
    bench::count_allocation();
    return __libc_realloc(block, size);
}
}
