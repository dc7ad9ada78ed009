#include "pages/map/tree.h"

#include <algorithm>

namespace pages {
namespace {

constexpr int column_width = box_width + 56;
constexpr int row_height = box_height + 16;

std::string parent_of(const Reach& reach) { return reach.stack.size() < 2 ? "" : *(reach.stack.end() - 2); }

} // namespace

Tree::Tree(const Walk& walk)
{
    for (const Reach& reach : walk.pages) {
        reaches_[reach.page] = &reach;
        children_[parent_of(reach)].push_back(reach.page);
    }
    for (const std::string& root : children_[""]) {
        height = place(root, 0, height);
    }
}

int Tree::place(const std::string& page, int column, int top)
{
    int bottom = top;
    for (const std::string& child : children_[page]) {
        bottom = place(child, column + 1, bottom);
    }
    bottom = std::max(bottom, top + row_height);
    places[page] = {column * column_width, top}; // beside its first child
    width = std::max(width, column * column_width + box_width);
    return bottom;
}

bool Tree::is_branch(const Way& way) const
{
    const auto reach = reaches_.find(way.to);
    return reach != reaches_.end() && parent_of(*reach->second) == way.from;
}

Keys Tree::last_keys(const Reach& reach) const
{
    const auto before = reaches_.find(parent_of(reach));
    const std::size_t known = before == reaches_.end() ? 0 : std::min(before->second->keys.size(), reach.keys.size());
    return {reach.keys.begin() + static_cast<std::ptrdiff_t>(known), reach.keys.end()};
}

} // namespace pages
