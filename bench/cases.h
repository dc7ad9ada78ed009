// What is measured: the redraw of each page, and an update of the zoom ratio.
#pragma once

#include <functional>
#include <string>

#include "bench/bare_redraw.h"
#include "bench/page.h"

namespace bench {

struct Case {
    std::string name;
    std::function<void()> by_library;
    Plan bare;
};

// Opens the page, and plans its redraw.
Case page_case(const Page& page);

// Shows the zoom ratio, and plans its next update. Its canvas is the same for every menu.
Case zoom_case();

// The yardstick is one only if it draws the same picture.
bool is_same_picture(const Case& measured);

} // namespace bench
