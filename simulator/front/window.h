// The window front end.
#pragma once

#include "simulator/core/camera.h"
#include "simulator/host/menu_host.h"

namespace sim {

/// Shows a channel in a window and takes keys from the keyboard until the window is closed. False when no window can
/// be opened; SDL_GetError() says why.
bool show_window(Camera& camera, MenuHost& host, int channel);

} // namespace sim
