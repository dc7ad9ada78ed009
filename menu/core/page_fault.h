// What the parser finds wrong in a page file: the one list of its messages. Those that have a line in the camera's log
// print it here.
#pragma once

#include <cstdint>

namespace tinyxml2 {
class XMLElement;
}

enum tagPAGE_FAULT_E : int32_t {
    PAGE_FAULT_ABSENT,   // a needed attribute isn't there
    PAGE_FAULT_TOO_LONG, // a text holds more bytes than its field
    PAGE_FAULT_WORD,     // none of the attribute's words
    PAGE_FAULT_NUMBER,   // no number
    PAGE_FAULT_NO_TEXT,  // the language has no text of this key
    PAGE_FAULT_OPTIONS,  // one option more than an item holds
};

struct tagPAGE_FAULT_S {
    tagPAGE_FAULT_E enFault;
    const tinyxml2::XMLElement* pstElem;
    const char* pcAttr;  // the attribute's name
    const char* pcValue; // what it says; null where it is absent
};

void osdPageFault(const tagPAGE_FAULT_S& stFault);

// Who wants to hear of each fault as well, also of those that the menu passes over; null for nobody, as on the camera.
extern void (*g_pfnPageFault)(const tagPAGE_FAULT_S& stFault);
