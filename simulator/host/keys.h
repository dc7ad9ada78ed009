// The keys of the remote control: one table for all front ends.
#pragma once

#include <SDL.h>
#include <string>
#include <vector>

#include "simulator/host/menu_host.h"

namespace sim {

/// What a key does that stays down.
enum class Held { Once, Repeats };

struct Key {
    const char* name;     ///< as scripts write it
    const char* title;    ///< as people read it
    SDL_Keycode keyboard; ///< key of the keyboard, SDLK_UNKNOWN for none
    Held held;
    void (*function)(MenuHost& host);
    const char* help;
};

/// All keys, in the order of the help text.
const std::vector<Key>& all_keys();

/// The name of the key that Escape is too, while the menu is open.
constexpr const char* escape_key = "menu";

/// The key of this name. Throws BadInput for an unknown name, which lists the known ones.
const Key& find_key(const std::string& name);

/// The key of a keyboard key; null when there is none. Escape is the menu key while the menu is open.
const Key* find_keyboard_key(SDL_Keycode code, bool menu_is_open);

/// Presses a key. Throws BadInput when a page that it opens by name can't be read.
void press(const Key& key, MenuHost& host);

} // namespace sim
