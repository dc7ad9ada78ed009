// The program's own functions of these names go before those of SDL's libraries, for the menu's library as well, because
// the program exports what it defines.
#include "simulator/host/graphics_faults.h"

#include <SDL_image.h>
#include <SDL_ttf.h>
#include <atomic>
#include <dlfcn.h>

namespace sim {
namespace {

std::atomic<const Faults*> graphics_faults{nullptr};

bool is_on(Fault fault)
{
    const Faults* faults = graphics_faults.load();
    return faults != nullptr && faults->is_on(fault);
}

/// The function that stands behind the program's own one.
template <typename Function>
Function* next_function(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

GraphicsFaults::GraphicsFaults(const Faults& faults) { graphics_faults = &faults; }

GraphicsFaults::~GraphicsFaults() { graphics_faults = nullptr; }

} // namespace sim

TTF_Font* TTF_OpenFontRW(SDL_RWops* src, int freesrc, int ptsize)
{
    static auto* const next = sim::next_function<decltype(TTF_OpenFontRW)>("TTF_OpenFontRW");
    if (next != nullptr && !sim::is_on(sim::Fault::FontsMissing)) {
        return next(src, freesrc, ptsize);
    }
    if (freesrc != 0 && src != nullptr) {
        SDL_RWclose(src); // as on every failure
    }
    SDL_SetError("the font is missing (fault fonts-missing)");
    return nullptr;
}

SDL_Surface* IMG_Load(const char* file)
{
    static auto* const next = sim::next_function<decltype(IMG_Load)>("IMG_Load");
    if (next != nullptr && !sim::is_on(sim::Fault::PicturesMissing)) {
        return next(file);
    }
    SDL_SetError("%s is missing (fault pictures-missing)", file);
    return nullptr;
}
