// Texts of STATUS items: each key has one fixed source.
#pragma once

#include "osd_records.h"

// Fills a STATUS item's text from its source; empty where there is none.
void osdStatusRead(const char* pcLanguage, tagITEM_NODE_S* pstItem);
