// The program's own functions of these names go before those of the libraries, for the menu's library as well, because
// the program exports what it defines.
#include "simulator/host/graphics_calls.h"

#include <SDL_image.h>
#include <SDL_ttf.h>
#include <atomic>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>

#include "simulator/base/resources.h"

namespace sim {
namespace {

std::atomic<const Faults*> graphics_faults{nullptr};
std::atomic<const ReplacedPictures*> replaced_pictures{nullptr};

/// The menu and the checker's own menu open and close fonts on two threads, with one font library between them, whose
/// list of open fonts nobody else guards. A font that can't be opened is closed inside the call that opens it.
std::recursive_mutex font_mutex;

bool is_on(Fault fault)
{
    const Faults* faults = graphics_faults.load();
    return faults != nullptr && faults->is_on(fault);
}

const std::string* replaced_content(const char* file)
{
    const ReplacedPictures* replaced = replaced_pictures.load();
    return replaced == nullptr ? nullptr : replaced->find(file);
}

/// Null, as on every failure, for a content that is no picture.
SDL_Surface* load_picture(const std::string& content)
{
    SDL_RWops* stream = SDL_RWFromConstMem(content.data(), static_cast<int>(content.size()));
    return stream == nullptr ? nullptr : IMG_Load_RW(stream, 1);
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

ReplacedPictures::ReplacedPictures() { replaced_pictures = this; }

ReplacedPictures::~ReplacedPictures() { replaced_pictures = nullptr; }

const std::string* ReplacedPictures::find(const std::filesystem::path& file) const
{
    if (file.parent_path() != staged_pictures()) {
        return nullptr; // other threads look at files as well, but at none of these
    }
    const auto found = contents_.find(file.filename().string());
    return found == contents_.end() ? nullptr : &found->second;
}

} // namespace sim

TTF_Font* TTF_OpenFontRW(SDL_RWops* src, int freesrc, int ptsize)
{
    static auto* const next = sim::next_function<decltype(TTF_OpenFontRW)>("TTF_OpenFontRW");
    if (next != nullptr && !sim::is_on(sim::Fault::FontsMissing)) {
        const std::lock_guard<std::recursive_mutex> lock(sim::font_mutex);
        return next(src, freesrc, ptsize);
    }
    if (freesrc != 0 && src != nullptr) {
        SDL_RWclose(src); // as on every failure
    }
    SDL_SetError("the font is missing (fault fonts-missing)");
    return nullptr;
}

void TTF_CloseFont(TTF_Font* font)
{
    static auto* const next = sim::next_function<decltype(TTF_CloseFont)>("TTF_CloseFont");
    const std::lock_guard<std::recursive_mutex> lock(sim::font_mutex);
    next(font);
}

SDL_Surface* IMG_Load(const char* file)
{
    static auto* const next = sim::next_function<decltype(IMG_Load)>("IMG_Load");
    if (next != nullptr && !sim::is_on(sim::Fault::PicturesMissing)) {
        const std::string* content = sim::replaced_content(file);
        return content == nullptr ? next(file) : sim::load_picture(*content);
    }
    SDL_SetError("%s is missing (fault pictures-missing)", file);
    return nullptr;
}

/// The menu asks for a picture's file before it loads it; one of a new name has none.
int access(const char* name, int type) noexcept
{
    return sim::replaced_content(name) != nullptr ? 0 : ::faccessat(AT_FDCWD, name, type, 0);
}
