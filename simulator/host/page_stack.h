// The open pages of the menu, and how they are opened anew.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "osd_records.h"

namespace sim {

/// The item that a link of a list belongs to; place: which of its links that is.
inline tagITEM_NODE_S* item_of(list_head* link, std::size_t place = offsetof(tagITEM_NODE_S, stNode))
{
    return reinterpret_cast<tagITEM_NODE_S*>(reinterpret_cast<char*>(link) - place);
}

/// The items of an open page that show, in their order.
std::vector<tagITEM_NODE_S*> visible_items(tagPAGE_NODE_S& page);

/// The names of the open pages, bottom first.
std::vector<std::string> open_page_names();

/// Puts a page on the stack and draws nothing, with the same steps as the library: a page that can't be read counts as
/// well, because its record can hold the items that stood before the mistake. False for such a page.
bool push_page(const std::string& name);

/// Reads all open pages again and draws the top one, with no moment between at which the menu is hidden. Each cursor
/// stays on the item with its key where there still is one. An address that is being edited and a value that waits for
/// its confirmation are lost. Does nothing while the menu is closed.
void reopen_pages();

} // namespace sim
