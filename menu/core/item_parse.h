// Items of a page file, with the options and sub-items below them.
#pragma once

#include "osd_records.h"

namespace tinyxml2 {
class XMLElement;
}

// Where an item stands, which its element doesn't say.
struct tagITEM_PLACE_S {
    tagITEM_LEVEL_E enLevel;
    OSD_BOOL bSubItem;
    OSD_BOOL bActive;
};

// Builds one item with all below it and appends it to pstHead; false with nothing linked or left.
bool osdItemParse(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, const tagITEM_PLACE_S& stPlace,
                  list_head* pstHead);
