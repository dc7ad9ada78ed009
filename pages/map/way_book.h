// What a walk has found.
#pragma once

#include <functional>
#include <map>
#include <set>

#include "pages/map/walk.h"

namespace pages {

class WayBook {
public:
    explicit WayBook(const ResourceFolder& folder) : folder_(folder) {}

    /// False when the page is known from a stack that is as low.
    bool add_page(const std::vector<std::string>& stack, const Keys& keys);
    void add_setting(const tagITEM_NODE_S& item, const std::string& page, const Keys& keys);
    void add_way(const Way& way, const tagITEM_NODE_S& item);
    /// The page didn't open over so many.
    void add_refused_way(const Way& way, const tagITEM_NODE_S& item, std::size_t open_pages);
    /// Of an item, or of the page as a whole for null.
    void add_end(const std::string& page, const tagITEM_NODE_S* item, const std::string& words);
    void add_lines(const std::vector<std::string>& lines);

    /// Follows all ways until the sixth page; refused(stack, keys) presses the keys and tells whether the last page of
    /// the stack didn't open.
    void find_too_deep(const std::function<bool(const std::vector<std::string>&, const Keys&)>& refused);

    Walk take() { return std::move(walk_); }

private:
    void remember(const Way& way);
    void follow(std::vector<std::string>& stack, const Keys& keys,
                const std::function<bool(const std::vector<std::string>&, const Keys&)>& refused);

    const ResourceFolder& folder_;
    Walk walk_;
    std::map<std::string, std::size_t> lowest_;                        ///< stack of each page
    std::map<std::pair<std::string, std::string>, std::size_t> known_; ///< ways, by both ends
    std::set<std::pair<std::string, std::string>> ends_;
    std::set<std::pair<std::string, std::string>> refused_; ///< ends of ways that have been told as too deep
    std::set<std::string> lines_;
    int followed_ = 0;
};

} // namespace pages
