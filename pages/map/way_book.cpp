#include "pages/map/way_book.h"

#include <algorithm>

#include "menu/core/led_color.h"
#include "osd_types.h"

namespace pages {
namespace {

/// So many stacks are followed at most: pages that lead to each other have very many.
constexpr int most_followed = 20000;

/// The setting that an item changes.
SettingId changed_by(const tagITEM_NODE_S& item, const Definitions& definitions)
{
    if (osdLedByteFind(item.acItemIndex) != nullptr) {
        return {"", custom_color};
    }
    const auto zone = definitions.zones.find(item.acDataZone);
    return {zone == definitions.zones.end() ? "" : zone->second, item.acItemIndex};
}

} // namespace

bool WayBook::add_page(const std::vector<std::string>& stack, const Keys& keys)
{
    const auto [lowest, is_new] = lowest_.insert({stack.back(), stack.size()});
    if (is_new) {
        walk_.pages.push_back({stack.back(), stack, keys});
        return true;
    }
    const bool lower = stack.size() < lowest->second; // then more may open above it
    lowest->second = std::min(lowest->second, stack.size());
    return lower;
}

void WayBook::add_setting(const tagITEM_NODE_S& item, const std::string& page, const Keys& keys)
{
    const SettingId id = changed_by(item, folder_.definitions);
    if (folder_.definitions.settings.count(id) == 0) {
        return;
    }
    const auto same = [&](const ReachedSetting& other) {
        return other.page == page && other.label == item.acItemName && other.setting.key == id.key &&
               other.setting.parent == id.parent;
    };
    const auto known = std::find_if(walk_.settings.begin(), walk_.settings.end(), same);
    if (known == walk_.settings.end()) {
        walk_.settings.push_back({id, page, item.acItemName, keys});
    } else if (keys.size() < known->keys.size()) {
        known->keys = keys;
    }
}

void WayBook::remember(const Way& way)
{
    if (known_.insert({{way.from, way.to}, walk_.ways.size()}).second) {
        walk_.ways.push_back(way);
    }
}

void WayBook::add_way(const Way& way, const tagITEM_NODE_S& item)
{
    const auto page = folder_.pages.find(way.to);
    if (page == folder_.pages.end()) {
        add_end(way.from, &item, "opens the page '" + way.to + "', which doesn't exist");
    } else if (page->second.root == nullptr) {
        add_end(way.from, &item, "opens the page '" + way.to + "', which can't be read");
    } else {
        remember(way);
    }
}

void WayBook::add_refused_way(const Way& way, const tagITEM_NODE_S& item, std::size_t open_pages)
{
    if (open_pages < OSD_PAGE_MAX) {
        add_end(way.from, &item, "doesn't open the page '" + way.to + "'");
    } else if (folder_.pages.count(way.to) > 0) {
        remember(way); // told when all ways are followed
    }
}

void WayBook::add_end(const std::string& page, const tagITEM_NODE_S* item, const std::string& words)
{
    const std::string subject = item == nullptr ? "" : "'" + std::string(item->acItemIndex) + "' ";
    if (!ends_.insert({page, subject + words}).second) {
        return;
    }
    const auto file = folder_.pages.find(page);
    Place place;
    if (file != folder_.pages.end() && file->second.root != nullptr) {
        place = file->second.root->place;
        for_each_element(*file->second.root, [&](const Element& element) {
            if (item != nullptr && element.value("ItemIndex") == item->acItemIndex) {
                place = element.place;
            }
        });
    }
    walk_.ends.push_back({page, place, subject + words});
}

void WayBook::add_lines(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines) {
        if (lines_.insert(line).second) {
            walk_.lines.push_back(line);
        }
    }
}

void WayBook::find_too_deep(const std::function<bool(const std::vector<std::string>&, const Keys&)>& refused)
{
    for (const Reach& reach : walk_.pages) {
        if (reach.stack.size() == 1) {
            std::vector<std::string> stack = reach.stack;
            follow(stack, reach.keys, refused);
        }
    }
}

void WayBook::follow(std::vector<std::string>& stack, const Keys& keys,
                     const std::function<bool(const std::vector<std::string>&, const Keys&)>& refused)
{
    for (const Way& way : walk_.ways) {
        const bool again = std::find(stack.begin(), stack.end(), way.to) != stack.end();
        if (way.from != stack.back() || again || ++followed_ > most_followed) {
            continue;
        }
        Keys longer = keys;
        longer.insert(longer.end(), way.keys.begin(), way.keys.end());
        stack.push_back(way.to);
        if (stack.size() <= OSD_PAGE_MAX) {
            follow(stack, longer, refused);
        } else if (refused_.insert({way.from, way.to}).second && refused(stack, longer)) {
            walk_.too_deep.push_back(stack);
        }
        stack.pop_back();
    }
}

} // namespace pages
