// What the lists share: rows that are no items of the page.
#pragma once

#include "osd_records.h"

// A line of text drawn as an item: the title (TITLE_LINE) or the message line (MSG_LINE).
tagITEM_NODE_S osdRowOfText(const char (&acText)[OSD_TEXT_LEN], tagITEM_LEVEL_E enLevel, tagITEM_ATTR_E enAttr);
