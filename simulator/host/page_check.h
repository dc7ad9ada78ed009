// Page files as the menu would read them.
#pragma once

#include <optional>
#include <string>

#include "simulator/core/camera.h"

namespace sim {

struct PageMistake {
    int line = 0; ///< 0 when it isn't known
    std::string reason;
};

/// Why the menu can't show the page with this text in the present language; none when it can. Opens nothing.
std::optional<PageMistake> find_page_mistake(Camera& camera, const std::string& name, const std::string& text);

} // namespace sim
