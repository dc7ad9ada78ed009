// Page files as XML elements: the functions of the interface whose arguments are C++ types, for hosts in C++17.
#pragma once

#include "osd_canvas.h"
#include "osd_records.h"

namespace tinyxml2 {
class XMLElement;
}

extern "C" {
// Clears the record, stores the name and reads the page's attributes. Returns 0, or -1 with what was read so far.
OSD_API int osdXmlParsePageAttribute(char* pcLanguage, tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage,
                                     char* pcPageName);

// Builds one item with all below it and appends it to pstHead. Returns 0, or -1 with nothing linked or left.
OSD_API int osdXmlParseItemAttribute(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_LEVEL_E enLevel,
                                     OSD_BOOL bSubItem, OSD_BOOL bActive, list_head* pstHead);

// Binds a new item. The element is read for CONFIRM and CONFIRM_POP items that carry a value, and may be null for all
// others. Returns -1 when Value or ConfirmPage of such a button is missing, else 0.
OSD_API int osdXmlFillItemParam(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItemNode);
}
