#include "bench/cases.h"

#include <stdexcept>
#include <vector>

#include "bench/camera.h"
#include "osd_menu.h"
#include "osd_prompt.h"

namespace bench {
namespace {

constexpr float zoom_ratio = 12.5f;

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
    open_page(page.name);
    return {page.name, gstMenuMgr.pstSurface, [] { OSD_MENU_RenderCanvas(); }};
}

Case zoom_case()
{
    update_zoom(); // from here on the ratio is live
    return {"zoom", gsZoomRatioOsdItem.pstSurface, update_zoom};
}

Record record_redraw(const Case& measured)
{
    if (measured.surface == nullptr) {
        throw std::runtime_error(measured.name + ": there is no surface");
    }
    measured.redraw(); // once before, so that nothing of a first time is recorded
    take_pixels(measured.surface);
    Record made = record(measured.redraw);
    const auto by_library = take_pixels(measured.surface);
    replay(made);
    if (take_pixels(measured.surface) != by_library) {
        throw std::runtime_error(measured.name + ": the replay draws another picture than the library");
    }
    return made;
}

} // namespace bench
