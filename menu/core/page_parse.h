// Page files: one XML document becomes one page record with its tree of items.
#pragma once

#include "osd_records.h"

namespace tinyxml2 {
class XMLElement;
}

// Items nest this deep at most; more than any page needs, and safe for the stack.
inline constexpr int32_t OSD_ITEM_DEPTH_MAX = 128;

// Fills pstPage from the file of the page; see OSD_MENU_ParseXml.
int osdPageParse(const char* pcPageName, tagPAGE_NODE_S* pstPage);

extern "C" {
// Clears the record, stores the name and reads the page's attributes. Returns 0, or -1 with what was read so far.
OSD_API int osdXmlParsePageAttribute(char* pcLanguage, tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage,
                                     char* pcPageName);

// Builds one item with all below it and appends it to pstHead. Returns 0, or -1 with nothing linked or left.
OSD_API int osdXmlParseItemAttribute(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_LEVEL_E enLevel,
                                     OSD_BOOL bSubItem, OSD_BOOL bActive, list_head* pstHead);
}
