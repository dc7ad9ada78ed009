// The camera's services in memory: settings, translations, pages, device facts, media memory, log, host callbacks.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "osd_menu.h"
#include "platform/config_service.h"

namespace fake {

struct Push {
    bool locked; // under the render lock
    const void* canvas;
    const void* attach; // null for all channels
    std::vector<unsigned char> pixels;
};

struct Settings {
    std::map<std::string, tagCFG_VALUE_TXT_S> texts;   // by "key" or "parent/key"
    std::map<std::string, tagCFG_VALUE_INT_S> numbers; // the same
    std::map<int, std::string> answers;                // of the get-callback, by event
    std::string language = "English";                  // in "German" the answer is "d." and the key
};

struct Platform : Settings {
    std::map<std::string, std::string> pages; // page name to document text
    std::set<std::string> untranslated;       // any other key answers this and the key
    std::string translated = "t.";
    std::map<std::string, std::string> words; // that are translated otherwise
    std::string deviceType;
    std::map<std::string, std::string> parents;                                 // of data zones
    std::function<void(tagITEM_NODE_S*)> host;                                  // runs inside the business function
    std::function<void(OSD_BOOL)> pushed;                                       // runs inside each push to all channels
    bool garbage = false;                                                       // unterminated texts everywhere
    int (*update)(OSD_BOOL, OSD_ATTACH_INFO_S*) = nullptr;                      // what MPP_MENU_SetMenuCb got
    std::map<void*, std::pair<std::string, std::vector<unsigned char>>> blocks; // media memory by address: name, bytes
    std::vector<Push> pushes;
    std::vector<std::string> log; // its tags
    int documents = 0;            // alive
    int damaged = 0;              // blocks written past their end, and releases of none
};

Platform& platform();

void setText(const std::string& key, const char* list, const char* value);
void setNumber(const std::string& key, int min, int max, int step, int cur);

// The host's callbacks.
int business(tagITEM_NODE_S* item);
const char* dataZoneParent(const char* zone);
void answer(void* user, tagOSD_MENU_GET_EVENT_E event, tagOSD_MENU_CONTROL_PARAM_S* block);

} // namespace fake
