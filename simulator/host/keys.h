// The keys of the remote control: one table for all front ends.
#pragma once

#include <SDL.h>
#include <string>
#include <vector>

#include "simulator/host/menu_host.h"

namespace sim {

struct Key {
    const char* name;                 ///< as scripts write it
    SDL_Keycode keyboard;             ///< key of the window's keyboard, SDLK_UNKNOWN for none
    void (*function)(MenuHost& host); ///< null while the key has none
    const char* help;
};

/// All keys, in the order of the help text.
const std::vector<Key>& all_keys();

/// The names of all keys, separated by spaces.
std::string key_names();

/// The keys of a script: names separated by spaces or commas. Throws BadInput for an unknown name, which lists the
/// known ones, and for a key without function.
std::vector<const Key*> parse_keys(const std::string& script);

/// The key of a keyboard key; null when there is none.
const Key* find_keyboard_key(SDL_Keycode code);

} // namespace sim
