// The drawing recorder: stands in front of SDL and its companions by symbol order, logs what the library asks for,
// and hands the call on. What SDL's companions call on their own (depth above 0) passes through unseen.
#include <SDL.h>
#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <SDL_ttf.h>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include "tests/fake/calls.h"

using fake::calls;
using fake::format;
using fake::record;

#define REAL(Name) reinterpret_cast<decltype(&Name)>(dlsym(RTLD_NEXT, #Name))
#define INTERCEPT(Name, line, ...) intercept(#Name, line, -1, [&] { return REAL(Name)(__VA_ARGS__); })
#define CREATE(Name, line, surface, ...) \
    intercept<SDL_Surface*>( \
        #Name, line, nullptr, [&] { return REAL(Name)(__VA_ARGS__); }, surface)

namespace {

int g_depth = 0;

// Logs a call and hands it on, unless it is to fail; an empty line is not logged. A new surface gets a description.
template <typename Result, typename Real>
Result intercept(const char* name, const std::string& line, Result failure, Real real, const std::string& surface = "")
{
    if (!calls().recording || g_depth > 0) {
        return real();
    }
    if (!line.empty()) {
        record(line);
    }
    if (fake::fails(name)) {
        return failure;
    }
    g_depth++;
    const Result result = real();
    g_depth--;
    if constexpr (std::is_same_v<Result, SDL_Surface*>) {
        if (result != nullptr) {
            calls().surfaces[result] = surface;
        }
    }
    return result;
}

std::string nameOf(const SDL_Surface* surface)
{
    const auto it = calls().surfaces.find(surface);
    return it == calls().surfaces.end() ? "a stranger" : it->second;
}

// The stem in the name of a picture that was loaded or scaled.
std::string stemOf(const SDL_Surface* surface) { return nameOf(surface).substr(nameOf(surface).find(' ') + 1); }

std::string onto(const SDL_Surface* target) { return nameOf(target) == "canvas" ? "" : " on " + nameOf(target); }

std::string nameOf(const TTF_Font* font)
{
    return format("%s %d", calls().fonts.at(font).name.c_str(), calls().fonts.at(font).size);
}

std::string nameOf(SDL_Color c)
{
    const std::string hex = format("%02x%02x%02x%02x", c.a, c.r, c.g, c.b);
    return hex == "ffffffff" ? "white" : hex == "ffbfbfbf" ? "grey" : hex == "ffffcd25" ? "amber" : hex;
}

SDL_Surface* filled(int w, int h, SDL_Color c)
{
    SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormat(0, w, h, 32, SDL_PIXELFORMAT_ARGB8888);
    (void)REAL(SDL_FillRect)(surface, nullptr, SDL_MapRGBA(surface->format, c.r, c.g, c.b, c.a));
    return surface;
}

int widthOf(const char* text) { return calls().byteWidth * static_cast<int>(strlen(text)); }

bool isMissing(const char* path) { return calls().missingFiles.count(fake::baseName(path)) != 0; }

bool hasSuffix(const char* path, const char* suffix)
{
    const char* dot = strrchr(path, '.');
    return dot != nullptr && strcmp(dot, suffix) == 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    if (calls().recording && hasSuffix(path, ".ttf")) {
        calls().lastFile = fake::baseName(path);
        if (isMissing(path)) {
            return -1;
        }
        path = calls().fakeFonts ? "/proc/self/exe" : path; // any file that can be mapped
    }
    return REAL(open)(path, flags, mode);
}

int access(const char* path, int mode)
{
    if (!hasSuffix(path, ".bmp")) {
        return REAL(access)(path, mode);
    }
    return intercept("access", format("access %s", path), -1, [&] {
        return isMissing(path) ? -1 : calls().fakePictures ? 0 : REAL(access)(path, mode);
    });
}

// Nothing of the library needs SDL's subsystems.
int SDL_Init(Uint32 flags)
{
    return intercept("SDL_Init", format("SDL_Init %#x", flags), -1, [] { return 0; });
}
void SDL_Quit() { record("SDL_Quit"); }
int IMG_Init(int flags) { return INTERCEPT(IMG_Init, format("IMG_Init %d", flags), flags); }
void IMG_Quit() { record("IMG_Quit"); }
int TTF_Init() { return intercept("TTF_Init", "TTF_Init", -1, REAL(TTF_Init)); }

TTF_Font* TTF_OpenFontRW(SDL_RWops* source, int freeSource, int size)
{
    const std::string& file = calls().lastFile;
    const bool fake = calls().fakeFonts; // a fake font is its file
    const std::string line = format("open %s %d%s", file.c_str(), size, freeSource != 0 ? "" : ", kept open");
    TTF_Font* font = intercept<TTF_Font*>("TTF_OpenFontRW", line, nullptr, [=] {
        return fake ? reinterpret_cast<TTF_Font*>(source) : REAL(TTF_OpenFontRW)(source, freeSource, size);
    });
    if (font != nullptr) {
        calls().fonts[font] = {file == "font.ttf" ? "plain" : file == "bold_font.ttf" ? "bold" : "tc", size};
    } else if (fake && freeSource != 0) {
        SDL_RWclose(source);
    }
    return font;
}

void TTF_CloseFont(TTF_Font* font)
{
    record("close " + calls().fonts.at(font).name);
    calls().fonts.erase(font);
    if (calls().fakeFonts) {
        SDL_RWclose(reinterpret_cast<SDL_RWops*>(font));
    } else {
        REAL(TTF_CloseFont)(font);
    }
}

int TTF_SetFontSize(TTF_Font* font, int size)
{
    return intercept("TTF_SetFontSize", "", -1, [=] {
        calls().fonts.at(font).size = size;
        return calls().fakeFonts ? 0 : REAL(TTF_SetFontSize)(font, size);
    });
}

int TTF_SizeUTF8(TTF_Font* font, const char* text, int* w, int* h)
{
    return intercept("TTF_SizeUTF8", format("measure %s '%s'", nameOf(font).c_str(), text), -1, [=] {
        if (!calls().fakeFonts) {
            return REAL(TTF_SizeUTF8)(font, text, w, h);
        }
        *w = widthOf(text);
        if (h != nullptr) {
            *h = calls().lineHeight;
        }
        return 0;
    });
}

SDL_Surface* TTF_RenderUTF8_Blended(TTF_Font* font, const char* text, SDL_Color colour)
{
    const std::string name = format("%s %s '%s'", nameOf(font).c_str(), nameOf(colour).c_str(), text);
    const auto render = [=]() -> SDL_Surface* {
        if (!calls().fakeFonts) {
            return REAL(TTF_RenderUTF8_Blended)(font, text, colour);
        }
        return *text != '\0' ? filled(widthOf(text), calls().lineHeight, colour) : nullptr;
    };
    return intercept<SDL_Surface*>("TTF_RenderUTF8_Blended", "", nullptr, render, name);
}

SDL_Surface* SDL_CreateRGBSurfaceWithFormat(Uint32 flags, int w, int h, int bits, Uint32 pixelFormat)
{
    return CREATE(SDL_CreateRGBSurfaceWithFormat, "", format("%dx%d", w, h), flags, w, h, bits, pixelFormat);
}

SDL_Surface* SDL_CreateRGBSurfaceWithFormatFrom(void* pixels, int w, int h, int bits, int pitch, Uint32 pixelFormat)
{
    const std::string line = format("canvas %dx%d %d bits, pitch %d, format %#x", w, h, bits, pitch, pixelFormat);
    return CREATE(SDL_CreateRGBSurfaceWithFormatFrom, line, "canvas", pixels, w, h, bits, pitch, pixelFormat);
}

SDL_Surface* SDL_ConvertSurfaceFormat(SDL_Surface* source, Uint32 pixelFormat, Uint32 flags)
{
    const std::string line = format("convert %s %#x", nameOf(source).c_str(), pixelFormat);
    const std::string name = format("%s %dx%d", stemOf(source).c_str(), source->w, source->h);
    return CREATE(SDL_ConvertSurfaceFormat, line, name, source, pixelFormat, flags);
}

SDL_Surface* rotozoomSurfaceXY(SDL_Surface* source, double angle, double x, double y, int smooth)
{
    const std::string line = format("zoom %s %g %g %g %d", nameOf(source).c_str(), angle, x, y, smooth);
    return CREATE(rotozoomSurfaceXY, line, "scaled " + stemOf(source), source, angle, x, y, smooth);
}

SDL_Surface* IMG_Load(const char* path)
{
    const std::string file = fake::baseName(path);
    const std::string stem = file.substr(0, file.find('.'));
    const SDL_Color colour = stem == "block" ? SDL_Color{255, 0, 0, 255} : SDL_Color{0, 0, 255, 255};
    const int size = calls().pictureSize;
    const auto load = [&] { return calls().fakePictures ? filled(size, size, colour) : REAL(IMG_Load)(path); };
    return intercept<SDL_Surface*>("IMG_Load", format("load %s", path), nullptr, load, "loaded " + stem);
}

void SDL_FreeSurface(SDL_Surface* surface)
{
    if (calls().recording && g_depth == 0 && surface != nullptr) {
        record("free " + nameOf(surface));
        calls().surfaces.erase(surface);
    }
    REAL(SDL_FreeSurface)(surface);
}

int SDL_FillRect(SDL_Surface* target, const SDL_Rect* rect, Uint32 pixel)
{
    SDL_Color c;
    SDL_GetRGBA(pixel, target->format, &c.r, &c.g, &c.b, &c.a);
    const std::string place =
        rect != nullptr ? format("fill %d,%d %dx%d ", rect->x, rect->y, rect->w, rect->h) : "fill all ";
    return INTERCEPT(SDL_FillRect, place + nameOf(c) + onto(target), target, rect, pixel);
}

int SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* part, SDL_Surface* target, SDL_Rect* place)
{
    const std::string line = format("blit %s at %d,%d", nameOf(source).c_str(), place->x, place->y);
    return INTERCEPT(SDL_UpperBlit, line + onto(target), source, part, target, place);
}

int SDL_SetSurfaceAlphaMod(SDL_Surface* surface, Uint8 alpha)
{
    return INTERCEPT(SDL_SetSurfaceAlphaMod, "alpha " + nameOf(surface) + format(" %d", alpha), surface, alpha);
}

} // extern "C"
