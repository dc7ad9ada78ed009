// What is measured: the redraw of each page, and an update of the zoom ratio.
#pragma once

#include <SDL.h>

#include <functional>
#include <string>

#include "bench/page.h"
#include "bench/recorder.h"

namespace bench {

struct Case {
    std::string name;
    SDL_Surface* surface;
    std::function<void()> redraw;
};

// Opens the page.
Case page_case(const Page& page);

// Shows the zoom ratio. Its canvas is the same for every menu.
Case zoom_case();

// The calls of one redraw, when replaying them draws the same picture; throws otherwise: they are no yardstick then.
Record record_redraw(const Case& measured);

} // namespace bench
