// A change of the language: the texts of open pages are translated again, in place.
#pragma once

#include "osd_records.h"

// Translates all open pages into the language that the configuration now reports; false with nothing changed.
bool osdLanguageTranslateAll();

// Translates one item.
void osdLanguageItem(const char* pcLanguage, tagITEM_NODE_S* pstItem);
