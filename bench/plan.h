// Plans of the bare calls for a page or for the zoom ratio, each worked out anew from the layout's measures.
#pragma once

#include <string>
#include <vector>

#include "bench/bare_redraw.h"
#include "bench/page.h"

namespace bench {

// For the library as it was started: on its surface, in its fonts.
Plan plan_page(const Page& page);

// For the zoom ratio that is on the picture.
Plan plan_zoom(const std::string& ratio);

// What stands on the background of each layout.
using Steps = std::vector<Step>;
Steps plan_vertical(const Page& page);
Steps plan_tolvane(const Page& page);
Steps plan_paged(const Page& page);
Steps plan_icons(const Page& page);
Steps plan_popup(const Page& page);
Steps plan_message_popup(const Page& page);

} // namespace bench
