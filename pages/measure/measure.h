// Draws the pages as the camera would, in every language, style and size, and tells what doesn't fit.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "pages/check/finding.h"
#include "pages/data/resource_folder.h"
#include "pages/menu/menu.h"

namespace pages {

struct MeasureOptions {
    std::set<std::string> pages;     ///< only these; empty for all
    std::set<std::string> languages; ///< only these; empty for all
};

/// What a text does on its page.
enum class Role { Title, Label, Value, Message, Caption };

/// A text on a page in the style and size in which it has the least pixels left.
struct TextRoom {
    std::string key; ///< of the text in the languages; empty for a number, an address and what else isn't translated
    std::string text;
    std::string page;
    const Element* element; ///< of the page file: the item, or the page itself for its title and message
    Role role;
    View view;
    int width; ///< in pixels
    int room;  ///< so many pixels it may have

    int left() const { return room - width; } ///< below 0 it doesn't fit
};

/// "label", "value" ...
const char* name_of(Role role);

struct Measures {
    std::vector<Finding> findings; ///< by cause, muted ones as well
    std::vector<TextRoom> rooms;   ///< of each text of each place and language
};

/// Draws and judges the pages. Takes the menu: any thread, one at a time.
Measures measure(const ResourceFolder& folder, const MeasureOptions& options);

/// Where the texts of a language are shown, and the room that they have there. A translation that doesn't fit is found by
/// putting it into folder.languages first: its left() is below 0.
std::vector<TextRoom> text_rooms(const ResourceFolder& folder, const std::string& language);

} // namespace pages
