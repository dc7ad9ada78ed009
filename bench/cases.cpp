#include "bench/cases.h"

#include "bench/camera.h"
#include "bench/plan.h"
#include "osd_menu.h"
#include "osd_prompt.h"

namespace bench {
namespace {

constexpr float zoom_ratio = 12.5f;
constexpr char zoom_text[] = "12.5X";

void update_zoom() { OSD_PROMPT_ShowZoomRatio(zoom_ratio); }

// The pixels, which are cleared: what is drawn next stands alone.
std::vector<unsigned char> take_pixels(SDL_Surface* surface)
{
    auto* begin = static_cast<unsigned char*>(surface->pixels);
    const std::vector<unsigned char> pixels(begin, begin + static_cast<std::ptrdiff_t>(surface->pitch) * surface->h);
    SDL_memset(begin, 0, pixels.size());
    return pixels;
}

} // namespace

Case page_case(const Page& page)
{
    open_page(std::string(page.name));
    return {std::string(page.name), [] { OSD_MENU_RenderCanvas(); }, plan_page(page)};
}

Case zoom_case()
{
    update_zoom(); // from here on the ratio is live
    return {"zoom", update_zoom, plan_zoom(zoom_text)};
}

bool is_same_picture(const Case& measured)
{
    SDL_Surface* surface = measured.bare.surface;
    if (surface == nullptr) {
        return false;
    }
    take_pixels(surface);
    measured.by_library();
    const auto by_library = take_pixels(surface);
    draw_bare(measured.bare);
    return take_pixels(surface) == by_library;
}

} // namespace bench
