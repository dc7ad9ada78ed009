// What the menu's library exports beside its public headers, and the host needs for open pages.
#pragma once

#include <cstddef>

#include "osd_records.h"

namespace tinyxml2 {
class XMLElement;
}

extern "C" {
/// Closes the top page and draws nothing. Returns 0.
OSD_API int osdMenuReleaseSinglePage();
/// Frees an item with all below it. Returns 0.
OSD_API int osdMenuReleaseItem(tagITEM_NODE_S* item);
/// The item that holds the cursor of a page; null when there is none.
OSD_API tagITEM_NODE_S* osdMenuGetSelectedItem(tagPAGE_NODE_S* page);
/// Appends an item and the sub-items of it that show to a list through their stTmpNode. Returns 0.
OSD_API int osdMenuInsertItems2TmpList(tagITEM_NODE_S* item, list_head* head);
/// Clears the record of a page and reads the attributes of its root element. Returns 0, or -1.
OSD_API int osdXmlParsePageAttribute(char* language, tinyxml2::XMLElement* root, tagPAGE_NODE_S* page, char* name);
/// Reads one item with all below it and appends it to a list. Returns 0, or -1 with nothing appended.
OSD_API int osdXmlParseItemAttribute(char* language, tinyxml2::XMLElement* element, tagITEM_LEVEL_E level,
                                     OSD_BOOL is_sub_item, OSD_BOOL is_active, list_head* head);
}

namespace sim {

/// The item that a link of a list belongs to; place: which of its links that is.
inline tagITEM_NODE_S* item_of(list_head* link, std::size_t place = offsetof(tagITEM_NODE_S, stNode))
{
    return reinterpret_cast<tagITEM_NODE_S*>(reinterpret_cast<char*>(link) - place);
}

} // namespace sim
