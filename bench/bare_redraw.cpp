#include "bench/bare_redraw.h"

#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/media_service.h"

namespace bench {
namespace {

constexpr Uint8 dim_alpha = 191;
constexpr Uint32 white_pixel = 0xFFFFFFFF;
constexpr int first_font_size = 32; // of a font that is just open, until it is sized

void put(SDL_Surface* from, SDL_Surface* onto, SDL_Rect place)
{
    SDL_UpperBlit(from, nullptr, onto, &place);
    SDL_FreeSurface(from);
}

int unmap_font(SDL_RWops* file)
{
    munmap(file->hidden.mem.base, static_cast<size_t>(file->hidden.mem.stop - file->hidden.mem.base));
    SDL_FreeRW(file);
    return 0;
}

TTF_Font* open_font(const std::string& path)
{
    struct stat about = {};
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    fstat(file, &about);
    const auto size = static_cast<size_t>(about.st_size);
    void* bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    close(file);
    SDL_RWops* mapped = SDL_RWFromConstMem(bytes, static_cast<int>(size));
    mapped->close = unmap_font;
    return TTF_OpenFontRW(mapped, 1, first_font_size);
}

void draw(const Step& step, SDL_Surface* onto);

void draw(const SizeFont& step, SDL_Surface* /*onto*/) { TTF_SetFontSize(step.font, step.size); }

void draw(const Measure& step, SDL_Surface* /*onto*/)
{
    int width = 0;
    int height = 0;
    TTF_SizeUTF8(step.font, step.text.c_str(), &width, &height);
}

void draw(const Text& step, SDL_Surface* onto)
{
    TTF_SetFontSize(step.font, step.size);
    put(TTF_RenderUTF8_Blended(step.font, step.text.c_str(), step.color), onto, step.place);
}

void draw(const LoneText& step, SDL_Surface* onto)
{
    TTF_Font* font = open_font(step.font_path);
    TTF_SetFontSize(font, step.size);
    SDL_Surface* text = TTF_RenderUTF8_Blended(font, step.text.c_str(), step.color);
    TTF_CloseFont(font);
    put(text, onto, step.place);
}

void draw(const Picture& step, SDL_Surface* onto)
{
    if (access(step.path.c_str(), F_OK) != 0) {
        return;
    }
    SDL_Surface* raw = IMG_Load(step.path.c_str());
    SDL_Surface* scaled = rotozoomSurfaceXY(raw, 0.0, static_cast<double>(step.place.w) / raw->w,
                                            static_cast<double>(step.place.h) / raw->h, SMOOTHING_ON);
    SDL_Surface* picture = SDL_ConvertSurfaceFormat(scaled, SDL_PIXELFORMAT_ARGB4444, 0);
    SDL_FreeSurface(raw);
    SDL_FreeSurface(scaled);
    if (step.is_dim) {
        SDL_SetSurfaceAlphaMod(picture, dim_alpha);
    }
    put(picture, onto, step.place);
}

void draw(const Fill& step, SDL_Surface* onto)
{
    Uint32 pixel = white_pixel;
    if (step.color) {
        pixel = SDL_MapRGBA(onto->format, step.color->r, step.color->g, step.color->b, step.color->a);
    }
    for (const SDL_Rect& place : step.places) {
        SDL_FillRect(onto, &place, pixel);
    }
}

void draw(const Widget& step, SDL_Surface* onto)
{
    SDL_Surface* widget = SDL_CreateRGBSurfaceWithFormat(0, step.place.w, step.place.h, 16, SDL_PIXELFORMAT_ARGB4444);
    for (const Step& part : step.parts) {
        draw(part, widget);
    }
    if (step.is_dim) {
        SDL_SetSurfaceAlphaMod(widget, dim_alpha);
    }
    put(widget, onto, step.place);
}

void draw(const FileTest& step, SDL_Surface* /*onto*/)
{
    (void)access(step.path.c_str(), F_OK); // the cost counts, not the answer
}

void draw(const Step& step, SDL_Surface* onto)
{
    std::visit([onto](const auto& what) { draw(what, onto); }, step.what);
}

} // namespace

void draw_bare(const Plan& plan)
{
    if (plan.lock != nullptr) {
        pthread_mutex_lock(plan.lock);
    }
    for (const Step& step : plan.steps) {
        draw(step, plan.surface);
    }
    MPP_MENU_UpdateCanvasToAllChns(1, plan.canvas);
    if (plan.lock != nullptr) {
        pthread_mutex_unlock(plan.lock);
    }
}

} // namespace bench
