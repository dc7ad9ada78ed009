// The menu itself, drawn into memory with the texts, pictures and settings of a folder of resources.
#pragma once

#include <SDL.h>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <tinyxml2.h>
#include <vector>

#include "menu/core/page_fault.h"
#include "osd_records.h"
#include "pages/data/looks.h"
#include "pages/data/resource_folder.h"

namespace pages {

/// How the menu is looked at.
struct View {
    std::string language;
    std::uint32_t style = 0; ///< below style_count
    bool uhd = false;        ///< of a picture of 3840 by 2160 pixels instead of 1920 by 1080

    SDL_Rect menu() const { return {0, 0, uhd ? 1920 : 960, uhd ? 2160 : 1080}; }
};

/// "German, style 1, 4k"
std::string to_string(const View& view);

/// Every language in every style and size.
std::vector<View> all_views(const ResourceFolder& folder);

/// What the parser says of an element, in the language of the view.
struct Fault {
    tagPAGE_FAULT_E kind;
    const Element* element;
    std::string attribute;
    std::string value;
    bool has_value; ///< else the attribute is absent
};

enum class Key { Menu, Advanced, Up, Down, Left, Right, Home, Return };

/// The library's menu. One at a time in the process: a second one waits for the end of the first. Settings have their
/// defaults; what the menu hands to its host is stored, and nothing else happens.
class Menu {
public:
    /// The folder must outlive the menu. Throws BadInput when a font is missing.
    Menu(const ResourceFolder& folder, const View& view);
    /// For reading pages alone, in a language: needs no font, can't draw.
    Menu(const ResourceFolder& folder, const std::string& language);
    ~Menu();
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    /// Another language, style or size, with no page open.
    void look(const View& view);
    const View& view() const;

    /// Gives a setting a value that it can have; one that there isn't stays away.
    void store(const SettingId& setting, const std::string& value);
    /// Gives all settings their defaults again.
    void forget_values();

    /// Parses a page and what it shows, and tells what the parser says of it.
    std::vector<Fault> parse(const PageFile& page);

    /// Puts a page above the open ones and draws nothing; false for one that can't be read as a whole.
    bool open(const std::string& page);
    void close_all();
    /// The page on top; null with none open.
    tagPAGE_NODE_S* top();
    /// Its items that show, in their order.
    std::vector<tagITEM_NODE_S*> rows();
    std::vector<std::string> open_pages() const;

    /// Calls one of the library's functions for a key, such as OSD_MENU_HandleKeyDown.
    void key(int (*function)());
    /// The same by the key's name, for whoever doesn't see the library.
    void press(Key key);
    /// The same without drawing, which takes a small part of the time.
    void press_unseen(Key key);

    /// Draws the page on top. The pixels, ARGB8888, are the menu's and change with the next call.
    SDL_Surface* draw();

    /// The failures that the library has printed or logged since the last call, a line each.
    std::vector<std::string> take_lines();

private:
    std::unique_lock<std::mutex> lock_;
};

} // namespace pages
