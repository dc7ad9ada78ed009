// Page files: one XML document becomes one page record with its tree of items.
#pragma once

#include "osd_records.h"

namespace tinyxml2 {
class XMLElement;
}

// Fills pstPage from the file of the page; the work of OSD_MENU_ParseXml. False where that gives -1.
bool osdPageParse(const char* pcPageName, tagPAGE_NODE_S* pstPage);

// Clears the record, stores the name and reads the page's attributes; false with what was read so far.
bool osdPageReadAttributes(const char* pcLanguage, const tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage,
                           const char* pcPageName);
