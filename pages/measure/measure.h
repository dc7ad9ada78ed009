// Draws the pages as the camera would, in every language, style and size, and tells what doesn't fit.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "pages/data/finding.h"
#include "pages/data/resource_folder.h"
#include "pages/menu/menu.h"

namespace pages {

/// Whether a page is to be drawn in a language; null for all pages in all languages.
using Wanted = std::function<bool(const PageFile& page, const std::string& language)>;

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
    int lost;  ///< bytes that it loses where its page puts a number behind it

    int left() const { return room - width; }
    bool fits() const { return left() >= 0 && lost == 0; }
};

/// Whether the first has less room than the other.
inline bool is_tighter(const TextRoom& one, const TextRoom& other)
{
    return one.lost != other.lost ? one.lost > other.lost : one.left() < other.left();
}

/// "label", "value" ...
const char* name_of(Role role);

struct Measures {
    std::vector<Finding> findings; ///< muted ones as well, and each that by_cause() unites
    std::vector<TextRoom> rooms;   ///< of each text of each place and language
};

/// Draws and judges the pages. Takes the menu: any thread, one at a time. Throws BadInput when a font is missing.
Measures measure(const ResourceFolder& folder, const Wanted& wanted);

/// Where the texts of a language are shown, and the room that they have there. A translation that doesn't fit is found by
/// putting it into folder.languages first: it is one that fits() not.
std::vector<TextRoom> text_rooms(const ResourceFolder& folder, const std::string& language);

} // namespace pages
