// A change of the language: the texts of open pages are translated again, in place.
#pragma once

#include "osd_records.h"

extern "C" {
// Translates all open pages into the language that the configuration now reports. Sub-items, page messages and status
// texts stay as they are until their page is opened again. Returns 0, or -1 with nothing changed.
OSD_API int osdMenuReparseParamByLang();

// Translates one item. Returns 0.
OSD_API int osdMenuReplaceItemLang(char* pcLanguage, tagITEM_NODE_S* pstItemNode);
}
