// The window front end.
#pragma once

#include "simulator/host/key_script.h"
#include "simulator/host/menu_session.h"

namespace sim {

/// Shows a channel in a window and takes keys from the player and the keyboard until the window is closed. False when
/// no window can be opened; SDL_GetError() says why.
bool show_window(MenuSession& session, KeyPlayer& keys, int channel);

} // namespace sim
