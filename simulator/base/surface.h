// A surface of SDL with an owner.
#pragma once

#include <SDL.h>
#include <memory>

namespace sim {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using Surface = std::unique_ptr<SDL_Surface, FreeSurface>;

} // namespace sim
