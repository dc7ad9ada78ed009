// Page files: one XML document becomes one page record with its tree of items.
#pragma once

#include "osd_records.h"
#include "osd_xml.h"

// Fills pstPage from the file of the page; see OSD_MENU_ParseXml.
int osdPageParse(const char* pcPageName, tagPAGE_NODE_S* pstPage);
