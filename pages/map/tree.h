// Where the pages of a walk stand on the map: each right of the page that opens it, below its elder sisters.
#pragma once

#include <map>
#include <string>

#include "pages/map/walk.h"

namespace pages {

constexpr int box_width = 270;
constexpr int box_height = 122;

/// The left top corner of a page's box.
struct Spot {
    int x = 0;
    int y = 0;
};

struct Tree {
    explicit Tree(const Walk& walk);

    /// Whether the way is the shortest to its end.
    bool is_branch(const Way& way) const;
    /// The keys of the shortest way from the page before, or from the closed menu.
    Keys last_keys(const Reach& reach) const;

    std::map<std::string, Spot> places;
    int width = 0;
    int height = 0;

private:
    int place(const std::string& page, int column, int top);

    std::map<std::string, const Reach*> reaches_;
    std::map<std::string, std::vector<std::string>> children_;
};

} // namespace pages
