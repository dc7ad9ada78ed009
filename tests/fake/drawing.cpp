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
using fake::fails;
using fake::format;
using fake::record;

#define REAL(Name) \
    ([] { \
        static const auto pfn = reinterpret_cast<decltype(&Name)>(dlsym(RTLD_NEXT, #Name)); \
        return pfn; \
    }())

namespace {

thread_local int g_depth = 0;

struct Depth {
    const bool seen = calls().recording && g_depth == 0;
    Depth() { ++g_depth; }
    ~Depth() { --g_depth; }
};

std::string nameOf(const SDL_Surface* surface)
{
    const auto it = calls().surfaces.find(surface);
    return it == calls().surfaces.end() ? "a stranger" : it->second;
}

SDL_Surface* keep(const Depth& depth, SDL_Surface* surface, const std::string& name)
{
    if (depth.seen && surface != nullptr) {
        calls().surfaces[surface] = name;
    }
    return surface;
}

std::string colourName(SDL_Color c)
{
    const std::string hex = format("%02x%02x%02x%02x", c.a, c.r, c.g, c.b);
    static const std::map<std::string, std::string> names = {
        {"ffffffff", "white"}, {"ffbfbfbf", "grey"}, {"ffffcd25", "amber"}};
    const auto it = names.find(hex);
    return it == names.end() ? hex : it->second;
}

std::string fontName(const std::string& file)
{
    return file == "font.ttf" ? "plain" : file == "bold_font.ttf" ? "bold" : file == "tcfont.ttf" ? "tc" : file;
}

std::string onto(const SDL_Surface* target) { return nameOf(target) == "canvas" ? "" : " on " + nameOf(target); }

SDL_Surface* filled(int w, int h, SDL_Color c)
{
    SDL_Surface* surface = REAL(SDL_CreateRGBSurfaceWithFormat)(0, w, h, 32, SDL_PIXELFORMAT_ARGB8888);
    REAL(SDL_FillRect)(surface, nullptr, REAL(SDL_MapRGBA)(surface->format, c.r, c.g, c.b, c.a));
    return surface;
}

bool isFake(const TTF_Font* font)
{
    const auto it = calls().fonts.find(font);
    return it != calls().fonts.end() && it->second.stream != nullptr;
}

bool isMissing(const char* path) { return calls().missingFiles.count(fake::baseName(path)) != 0; }

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    if (g_depth == 0 && endsWith(path, ".ttf") && calls().recording) {
        calls().lastFile = fake::baseName(path);
        if (isMissing(path)) {
            errno = ENOENT;
            return -1;
        }
        path = calls().fakeFonts ? "/proc/self/exe" : path; // any file that can be mapped
    }
    return REAL(open)(path, flags, mode);
}

int access(const char* path, int mode)
{
    if (g_depth == 0 && calls().recording && endsWith(path, ".bmp")) {
        record(format("access %s", path));
        if (fails("access") || isMissing(path) ||
            (calls().fakePictures && strncmp(path, OSD_RESOURCE_DIR "/pic/", sizeof(OSD_RESOURCE_DIR) + 4) != 0)) {
            return -1;
        }
        if (calls().fakePictures) {
            return 0;
        }
    }
    return REAL(access)(path, mode);
}

int SDL_Init(Uint32 flags)
{
    record(format("SDL_Init %#x", flags));
    return fails("SDL_Init") ? -1 : 0; // nothing of the library needs SDL's subsystems
}
void SDL_Quit() { record("SDL_Quit"); }
int IMG_Init(int flags)
{
    record(format("IMG_Init %d", flags));
    return fails("IMG_Init") ? -1 : REAL(IMG_Init)(flags);
}
void IMG_Quit() { record("IMG_Quit"); }
int TTF_Init()
{
    record("TTF_Init");
    return fails("TTF_Init") ? -1 : REAL(TTF_Init)();
}

TTF_Font* TTF_OpenFontRW(SDL_RWops* source, int freeSource, int size)
{
    const Depth depth;
    record(format("open %s %d", calls().lastFile.c_str(), size));
    if (fails("TTF_OpenFontRW")) {
        if (freeSource != 0 && source != nullptr) {
            SDL_RWclose(source);
        }
        return nullptr;
    }
    void* stream = calls().fakeFonts ? source : nullptr;
    auto* font =
        calls().fakeFonts ? reinterpret_cast<TTF_Font*>(new char) : REAL(TTF_OpenFontRW)(source, freeSource, size);
    if (font != nullptr) {
        calls().fonts[font] = {fontName(calls().lastFile), size, stream};
    }
    return font;
}

void TTF_CloseFont(TTF_Font* font)
{
    const Depth depth;
    record("close " + calls().fonts[font].name);
    if (isFake(font)) {
        SDL_RWclose(static_cast<SDL_RWops*>(calls().fonts[font].stream));
        delete reinterpret_cast<char*>(font);
    } else {
        REAL(TTF_CloseFont)(font);
    }
    calls().fonts.erase(font);
}

int TTF_SetFontSize(TTF_Font* font, int size)
{
    const Depth depth;
    record(format("size %s %d", calls().fonts[font].name.c_str(), size));
    if (fails("TTF_SetFontSize")) {
        return -1;
    }
    calls().fonts[font].size = size;
    return isFake(font) ? 0 : REAL(TTF_SetFontSize)(font, size);
}

int TTF_SizeUTF8(TTF_Font* font, const char* text, int* w, int* h)
{
    const Depth depth;
    if (depth.seen) {
        record(format("measure %s %d '%s'", calls().fonts[font].name.c_str(), calls().fonts[font].size, text));
        if (fails("TTF_SizeUTF8")) {
            return -1;
        }
    }
    if (!isFake(font)) {
        return REAL(TTF_SizeUTF8)(font, text, w, h);
    }
    if (w != nullptr) {
        *w = calls().byteWidth * static_cast<int>(strlen(text));
    }
    if (h != nullptr) {
        *h = calls().lineHeight;
    }
    return 0;
}

SDL_Surface* TTF_RenderUTF8_Blended(TTF_Font* font, const char* text, SDL_Color colour)
{
    const Depth depth;
    const fake::Calls::Font& entry = calls().fonts[font];
    if (fails("TTF_RenderUTF8_Blended") || (isFake(font) && text[0] == '\0')) {
        return nullptr;
    }
    const int width = calls().byteWidth * static_cast<int>(strlen(text));
    SDL_Surface* surface =
        isFake(font) ? filled(width, calls().lineHeight, colour) : REAL(TTF_RenderUTF8_Blended)(font, text, colour);
    return keep(depth, surface,
                format("%s %d %s '%s'", entry.name.c_str(), entry.size, colourName(colour).c_str(), text));
}

SDL_Surface* SDL_CreateRGBSurfaceWithFormat(Uint32 flags, int w, int h, int bits, Uint32 pixelFormat)
{
    const Depth depth;
    if (depth.seen && fails("SDL_CreateRGBSurfaceWithFormat")) {
        return nullptr;
    }
    SDL_Surface* surface = REAL(SDL_CreateRGBSurfaceWithFormat)(flags, w, h, bits, pixelFormat);
    return keep(depth, surface, format("%dx%d", w, h));
}

SDL_Surface* SDL_CreateRGBSurfaceWithFormatFrom(void* pixels, int w, int h, int bits, int pitch, Uint32 pixelFormat)
{
    const Depth depth;
    if (!depth.seen) {
        return REAL(SDL_CreateRGBSurfaceWithFormatFrom)(pixels, w, h, bits, pitch, pixelFormat);
    }
    record(format("canvas %dx%d %d bits, pitch %d, format %#x", w, h, bits, pitch, pixelFormat));
    if (fails("SDL_CreateRGBSurfaceWithFormatFrom")) {
        return nullptr;
    }
    return keep(depth, REAL(SDL_CreateRGBSurfaceWithFormatFrom)(pixels, w, h, bits, pitch, pixelFormat), "canvas");
}

SDL_Surface* SDL_ConvertSurfaceFormat(SDL_Surface* source, Uint32 pixelFormat, Uint32 flags)
{
    const Depth depth;
    if (!depth.seen) {
        return REAL(SDL_ConvertSurfaceFormat)(source, pixelFormat, flags);
    }
    record(format("convert %s %#x", nameOf(source).c_str(), pixelFormat));
    if (fails("SDL_ConvertSurfaceFormat")) {
        return nullptr;
    }
    const std::string name = nameOf(source).substr(nameOf(source).find(' ') + 1);
    return keep(depth, REAL(SDL_ConvertSurfaceFormat)(source, pixelFormat, flags),
                format("%s %dx%d", name.c_str(), source->w, source->h));
}

void SDL_FreeSurface(SDL_Surface* surface)
{
    const Depth depth;
    if (depth.seen && surface != nullptr) {
        record("free " + nameOf(surface));
        calls().surfaces.erase(surface);
    }
    REAL(SDL_FreeSurface)(surface);
}

int SDL_FillRect(SDL_Surface* target, const SDL_Rect* rect, Uint32 pixel)
{
    const Depth depth;
    if (!depth.seen) {
        return REAL(SDL_FillRect)(target, rect, pixel);
    }
    SDL_Color c;
    SDL_GetRGBA(pixel, target->format, &c.r, &c.g, &c.b, &c.a);
    const SDL_Rect all = {0, 0, target->w, target->h};
    const SDL_Rect& at = rect != nullptr ? *rect : all;
    record(format("fill %d,%d %dx%d %s%s", at.x, at.y, at.w, at.h, colourName(c).c_str(), onto(target).c_str()));
    return fails("SDL_FillRect") ? -1 : REAL(SDL_FillRect)(target, rect, pixel);
}

int SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* part, SDL_Surface* target, SDL_Rect* place)
{
    const Depth depth;
    if (!depth.seen || source == nullptr) {
        return REAL(SDL_UpperBlit)(source, part, target, place);
    }
    const SDL_Rect at = place != nullptr ? *place : SDL_Rect{0, 0, 0, 0};
    record(format("blit %s%s at %d,%d%s", nameOf(source).c_str(), part != nullptr ? " in part" : "", at.x, at.y,
                  onto(target).c_str()));
    return fails("SDL_UpperBlit") ? -1 : REAL(SDL_UpperBlit)(source, part, target, place);
}

int SDL_SetSurfaceAlphaMod(SDL_Surface* surface, Uint8 alpha)
{
    const Depth depth;
    if (depth.seen) {
        record(format("alpha %s %d", nameOf(surface).c_str(), alpha));
    }
    return REAL(SDL_SetSurfaceAlphaMod)(surface, alpha);
}

SDL_Surface* IMG_Load(const char* path)
{
    const Depth depth;
    record(format("load %s", path));
    if (fails("IMG_Load") || isMissing(path)) {
        return nullptr;
    }
    const std::string file = fake::baseName(path);
    const std::string stem = file.substr(0, file.find('.'));
    const SDL_Color red = {255, 0, 0, 255};
    const SDL_Color blue = {0, 0, 255, 255};
    SDL_Surface* surface = calls().fakePictures ? filled(100, 100, stem == "block" ? red : blue) : REAL(IMG_Load)(path);
    return keep(depth, surface, "loaded " + stem);
}

SDL_Surface* rotozoomSurfaceXY(SDL_Surface* source, double angle, double x, double y, int smooth)
{
    const Depth depth;
    record(format("zoom %s %g %g %g %d", nameOf(source).c_str(), angle, x, y, smooth));
    if (fails("rotozoomSurfaceXY")) {
        return nullptr;
    }
    const std::string name = nameOf(source).substr(nameOf(source).find(' ') + 1);
    return keep(depth, REAL(rotozoomSurfaceXY)(source, angle, x, y, smooth), "scaled " + name);
}

} // extern "C"
