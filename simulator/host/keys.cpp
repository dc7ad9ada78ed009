#include "simulator/host/keys.h"

#include <algorithm>
#include <iostream>
#include <sstream>

#include "simulator/core/errors.h"

namespace sim {
namespace {

void press_menu(MenuHost& host)
{
    if (host.is_open()) {
        std::cerr << "camera-sim: key 'menu' has no function yet while the menu is open" << std::endl;
        return;
    }
    host.open();
}

} // namespace

const std::vector<Key>& all_keys()
{
    static const std::vector<Key> keys = {
        {"menu", SDLK_m, press_menu, "opens the menu"},
        {"home", SDLK_RETURN, nullptr, "confirms the selected item"},
        {"up", SDLK_UP, nullptr, "moves the cursor up"},
        {"down", SDLK_DOWN, nullptr, "moves the cursor down"},
        {"left", SDLK_LEFT, nullptr, "changes the value downwards"},
        {"right", SDLK_RIGHT, nullptr, "changes the value upwards, opens a page"},
        {"up-left", SDLK_UNKNOWN, nullptr, "up, then left"},
        {"up-right", SDLK_UNKNOWN, nullptr, "up, then right"},
        {"down-left", SDLK_UNKNOWN, nullptr, "down, then left"},
        {"down-right", SDLK_UNKNOWN, nullptr, "down, then right"},
        {"advanced", SDLK_a, nullptr, "opens the advanced menu"},
        {"return", SDLK_ESCAPE, nullptr, "goes back one page"},
        {"close", SDLK_c, nullptr, "closes the menu"},
        {"left-keep", SDLK_UNKNOWN, nullptr, "like left, but the value waits until it is applied"},
        {"right-keep", SDLK_UNKNOWN, nullptr, "like right, but the value waits until it is applied"},
        {"zoom+", SDLK_PLUS, nullptr, "zooms in"},
        {"zoom-", SDLK_MINUS, nullptr, "zooms out"},
        {"prompt", SDLK_p, nullptr, "shows a prompt over the picture"},
    };
    return keys;
}

std::string key_names()
{
    std::string names;
    for (const Key& key : all_keys()) {
        names += (names.empty() ? "" : " ") + std::string(key.name);
    }
    return names;
}

std::vector<const Key*> parse_keys(const std::string& script)
{
    std::string spaced = script;
    std::replace(spaced.begin(), spaced.end(), ',', ' ');
    std::istringstream words(spaced);
    std::vector<const Key*> keys;
    for (std::string word; words >> word;) {
        const auto has_name = [&word](const Key& key) { return word == key.name; };
        const auto found = std::find_if(all_keys().begin(), all_keys().end(), has_name);
        if (found == all_keys().end()) {
            throw BadInput("unknown key '" + word + "', expected one of: " + key_names());
        }
        if (found->function == nullptr) {
            throw BadInput("key '" + word + "' has no function yet");
        }
        keys.push_back(&*found);
    }
    return keys;
}

const Key* find_keyboard_key(SDL_Keycode code)
{
    const auto has_code = [code](const Key& key) { return key.keyboard == code && code != SDLK_UNKNOWN; };
    const auto found = std::find_if(all_keys().begin(), all_keys().end(), has_code);
    return found == all_keys().end() ? nullptr : &*found;
}

} // namespace sim
