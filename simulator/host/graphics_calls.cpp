// The program's own functions of these names go before those of SDL's libraries, for the menu's library as well, because
// the program exports what it defines.
#include "simulator/host/graphics_calls.h"

#include <SDL_image.h>
#include <SDL_ttf.h>
#include <atomic>
#include <dlfcn.h>
#include <system_error>
#include <utility>

#include "simulator/core/resources.h"

namespace sim {
namespace {

std::atomic<const Faults*> graphics_faults{nullptr};
std::atomic<const std::filesystem::path*> own_pictures{nullptr};

bool is_on(Fault fault)
{
    const Faults* faults = graphics_faults.load();
    return faults != nullptr && faults->is_on(fault);
}

std::filesystem::path picture_in_use(const std::filesystem::path& file)
{
    const std::filesystem::path* folder = own_pictures.load();
    if (folder == nullptr || file.parent_path() != staged_pictures()) {
        return file;
    }
    const std::filesystem::path own = *folder / file.filename();
    std::error_code ignored; // what can't be looked at isn't there
    return std::filesystem::exists(own, ignored) ? own : file;
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

PictureRedirection::PictureRedirection(std::filesystem::path folder) : folder_(std::move(folder))
{
    own_pictures = &folder_;
}

PictureRedirection::~PictureRedirection() { own_pictures = nullptr; }

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
        return next(sim::picture_in_use(file).c_str());
    }
    SDL_SetError("%s is missing (fault pictures-missing)", file);
    return nullptr;
}
