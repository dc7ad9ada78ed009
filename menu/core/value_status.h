// Texts of STATUS items: each key has one fixed source.
#pragma once

#include <cstddef>

#include "osd_records.h"

// Fills a STATUS item's text from its source; empty where there is none.
void osdStatusRead(const char* pcLanguage, tagITEM_NODE_S* pstItem);

struct tagSTATUS_KEY_S {
    const char* pcKey;    // null behind the last
    const char* pcParent; // of the setting that it shows; null where the host or the device tells
    bool bTranslated;     // what the host tells is the key of a text
};

// The keys that have a source, one by one.
tagSTATUS_KEY_S osdStatusKey(size_t uIdx);
