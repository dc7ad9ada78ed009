#include "simulator/host/keys.h"

#include <algorithm>

#include "osd_menu.h"
#include "simulator/base/data.h"

namespace sim {
namespace {

/// Only the opening is the host's: it knows the page.
void press_menu(MenuHost& host)
{
    if (host.is_open()) {
        host.call(OSD_MENU_HandleKeyMenu);
    } else {
        host.open();
    }
}

/// One step of the zoom; the menu shows it where it shows the zoom, and the ratio stands over the picture.
void step_zoom(MenuHost& host, int direction)
{
    char zoom_key[] = "Zoom";
    Camera& camera = host.camera();
    const Setting* zoom = camera.settings.find_key(zoom_key);
    if (zoom == nullptr) {
        throw BadInput("the settings definitions have no 'Zoom'");
    }
    const int wanted = camera.settings.number(zoom->id) + direction * zoom->step;
    const int percent = std::clamp(wanted, zoom->min, zoom->max);
    camera.settings.set(zoom->id, text_of(*zoom, percent));
    OSD_MENU_RefreshItem(zoom_key);
    host.overlays().show_zoom(percent / 100.0);
}

void zoom_in(MenuHost& host) { step_zoom(host, 1); }
void zoom_out(MenuHost& host) { step_zoom(host, -1); }
void show_prompt(MenuHost& host) { host.overlays().show_prompt(host.config().prompt); }
void toggle_recording(MenuHost& host) { host.overlays().toggle_recording_mark(); }

template <int (*Function)()>
void call(MenuHost& host)
{
    host.call(Function);
}

} // namespace

const std::vector<Key>& all_keys()
{
    static const std::vector<Key> keys = {
        {"menu", "Menu", SDLK_m, Held::Once, press_menu,
         "opens the menu; drops an edited address, goes back one page, closes the menu"},
        {"home", "Home, OK", SDLK_RETURN, Held::Once, call<OSD_MENU_HandleKeyHome>,
         "enters: opens a page, presses a button, applies a value"},
        {"up", "Up", SDLK_UP, Held::Repeats, call<OSD_MENU_HandleKeyUp>, "moves the cursor up"},
        {"down", "Down", SDLK_DOWN, Held::Repeats, call<OSD_MENU_HandleKeyDown>, "moves the cursor down"},
        {"left", "Left", SDLK_LEFT, Held::Repeats, call<OSD_MENU_HandleKeyLeft>, "changes the value downwards"},
        {"right", "Right", SDLK_RIGHT, Held::Repeats, call<OSD_MENU_HandleKeyRight>, "changes the value upwards"},
        {"up-left", "Up and left", SDLK_UNKNOWN, Held::Repeats, call<OSD_MENU_HandleKeyUp_Left>, "up, then left"},
        {"up-right", "Up and right", SDLK_UNKNOWN, Held::Repeats, call<OSD_MENU_HandleKeyUp_Right>, "up, then right"},
        {"down-left", "Down and left", SDLK_UNKNOWN, Held::Repeats, call<OSD_MENU_HandleKeyDown_Left>,
         "down, then left"},
        {"down-right", "Down and right", SDLK_UNKNOWN, Held::Repeats, call<OSD_MENU_HandleKeyDown_Right>,
         "down, then right"},
        {"advanced", "Advanced", SDLK_a, Held::Once, call<OSD_MENU_HandleKeyAdvancedMenu>, "opens the advanced menu"},
        {"return", "Return", SDLK_BACKSPACE, Held::Once, call<OSD_MENU_ReturnMenu>,
         "goes back one page, an edited address with it"},
        {"close", "Close", SDLK_c, Held::Once, call<OSD_MENU_CloseMenu>, "closes the menu"},
        {"left-keep", "Left without applying", SDLK_UNKNOWN, Held::Repeats, call<OSD_MENU_HandleKeyLeftUpdateItem>,
         "left, but the camera isn't told yet"},
        {"right-keep", "Right without applying", SDLK_UNKNOWN, Held::Repeats, call<OSD_MENU_HandleKeyRightUpdateItem>,
         "right, but the camera isn't told yet"},
        {"apply", "Apply", SDLK_SPACE, Held::Once, call<OSD_MENU_HandleSetParam>,
         "tells the camera the value of the selected item"},
        {"zoom+", "Zoom in", SDLK_PLUS, Held::Repeats, zoom_in, "zooms in and shows the ratio for two seconds"},
        {"zoom-", "Zoom out", SDLK_MINUS, Held::Repeats, zoom_out, "zooms out and shows the ratio for two seconds"},
        {"prompt", "Prompt", SDLK_p, Held::Once, show_prompt,
         "shows the text of --prompt over the picture for three seconds"},
        {"rec", "Rec", SDLK_r, Held::Once, toggle_recording,
         "puts the mark of a recording over the picture, or takes it away"},
    };
    return keys;
}

const Key& find_key(const std::string& name)
{
    std::vector<std::string> names;
    for (const Key& key : all_keys()) {
        if (name == key.name) {
            return key;
        }
        names.emplace_back(key.name);
    }
    throw BadInput("unknown key '" + name + "', expected " + one_of(name, names));
}

const Key* find_keyboard_key(SDL_Keycode code, bool menu_is_open)
{
    if (code == SDLK_ESCAPE) { // leaves one thing at a time, as the menu key does, but opens nothing
        return menu_is_open ? &find_key(escape_key) : nullptr;
    }
    const auto has_code = [code](const Key& key) { return key.keyboard == code && code != SDLK_UNKNOWN; };
    const auto found = std::find_if(all_keys().begin(), all_keys().end(), has_code);
    return found == all_keys().end() ? nullptr : &*found;
}

void press(const Key& key, MenuHost& host)
{
    host.camera().events.tell({"key", key.name});
    host.overlays().hide_what_is_over();
    key.function(host);
}

} // namespace sim
