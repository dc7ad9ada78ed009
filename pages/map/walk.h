// A walk through the menu by its keys: from each page to those that it opens, by the fewest presses.
#pragma once

#include <string>
#include <vector>

#include "pages/menu/menu.h"

namespace pages {

using Keys = std::vector<Key>;

/// "menu, down ×2, home"
std::string words_of(const Keys& keys);

/// A page that was reached.
struct Reach {
    std::string page;
    std::vector<std::string> stack; ///< pages open then, this one last
    Keys keys;                      ///< from the closed menu on, as few as there can be
};

/// A row that changes a setting.
struct ReachedSetting {
    SettingId setting;
    std::string page;
    std::string label; ///< on screen
    Keys keys;         ///< from the closed menu on, until the cursor stands on it
};

/// What opens a page on another one.
struct Way {
    std::string from;
    std::string to;
    Keys keys; ///< on the page that has just been opened
};

/// A way that leads nowhere.
struct DeadEnd {
    std::string page;
    Place place;
    std::string words;
};

struct Walk {
    std::vector<Reach> pages; ///< the nearest first
    std::vector<ReachedSetting> settings;
    std::vector<Way> ways;
    std::vector<DeadEnd> ends;
    std::vector<std::vector<std::string>> too_deep; ///< stacks whose last page doesn't open, being the sixth
    std::vector<std::string> lines;                 ///< failures that the library has told of, each once
};

/// Presses keys until nothing new comes; questions are answered with No, once each.
Walk walk(const ResourceFolder& folder, const View& view);

/// Presses the keys from the closed menu on, all settings at their defaults, and draws nothing.
void press(Menu& menu, const Keys& keys);

} // namespace pages
