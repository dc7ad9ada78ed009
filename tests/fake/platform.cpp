#include "tests/fake/platform.h"

#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstring>
#include <memory>
#include <tinyxml2.h>

#include "platform/log_service.h"
#include "platform/media_service.h"
#include "tests/fake/calls.h"

using fake::platform;

namespace {

constexpr int GUARD = 64;
constexpr unsigned char GUARD_BYTE = 0xC3;
constexpr unsigned char FILL_BYTE = 0xA5;

struct CountedDocument : tinyxml2::XMLDocument {
    CountedDocument() { platform().documents++; }
    ~CountedDocument() override { platform().documents--; }
};

void copyText(char* out, size_t size, const std::string& text)
{
    if (platform().garbage) {
        memset(out, 'x', size);
        return;
    }
    snprintf(out, size, "%s", text.c_str());
}

template <typename Record>
int fetch(const std::map<std::string, Record>& all, const char* call, const std::string& key, Record* out,
          const Record& garbage)
{
    fake::record(std::string(call) + " " + key);
    if (fake::fails(call)) {
        return -1; // the record stays as the caller made it
    }
    const auto it = all.find(key);
    if (platform().garbage) {
        *out = garbage;
    } else if (it != all.end()) {
        *out = it->second;
    }
    return it == all.end() ? -1 : 0;
}

int fetchText(const std::string& key, tagCFG_VALUE_TXT_S* out)
{
    tagCFG_VALUE_TXT_S garbage;
    memset(&garbage, 'x', sizeof garbage);
    for (size_t at = 1; at < 200; at += 2) {
        garbage.acList[at] = ':'; // more pieces than an item has options, then one that never ends
    }
    return fetch(platform().texts, "text", key, out, garbage);
}

int fetchNumber(const std::string& key, tagCFG_VALUE_INT_S* out)
{
    return fetch(platform().numbers, "number", key, out, {INT_MAX, INT_MIN, -1, -1, INT_MIN});
}

void push(const char* call, OSD_BOOL show, const void* attach, const tagOSD_MENU_CANVAS_S* canvas)
{
    fake::record(fake::format("%s %d", call, show));
    const bool locked = pthread_mutex_trylock(&g_stMutex) != 0;
    if (!locked) {
        (void)pthread_mutex_unlock(&g_stMutex);
    }
    fake::Push entry = {show != 0, locked, canvas, attach, {}};
    const auto it = platform().blocks.find(canvas->stMem.pvVirAddr);
    if (it != platform().blocks.end()) {
        const std::vector<unsigned char>& bytes = it->second.second;
        entry.pixels.assign(bytes.begin() + GUARD, bytes.end() - GUARD);
    }
    platform().pushes.push_back(entry);
}

} // namespace

namespace fake {

Platform& platform()
{
    static Platform instance;
    return instance;
}

void setText(const std::string& key, const char* list, const char* value)
{
    tagCFG_VALUE_TXT_S record = {};
    snprintf(record.acList, sizeof record.acList, "%s", list);
    snprintf(record.acValue, sizeof record.acValue, "%s", value);
    platform().texts[key] = record;
}

void setNumber(const std::string& key, int min, int max, int step, int cur)
{
    platform().numbers[key] = {min, max, 7, step, cur};
}

int business(tagITEM_NODE_S* item)
{
    record(std::string("business ") + item->acItemIndex);
    return -1; // not read by anybody
}

const char* dataZoneParent(const char* zone)
{
    const auto it = platform().parents.find(zone);
    return it == platform().parents.end() ? nullptr : it->second.c_str();
}

void answer(void* user, tagOSD_MENU_GET_EVENT_E event, tagOSD_MENU_CONTROL_PARAM_S* block)
{
    record(format("answer %d%s", event, user == &platform() ? "" : " for a stranger"));
    copyText(block->acText, sizeof block->acText, platform().answers[event]);
}

} // namespace fake

extern "C" {

int CFG_COM_GetTxtParams(char* key, tagCFG_VALUE_TXT_S* out) { return fetchText(key, out); }
int CFG_COM_GetTxtParamByParent(char* parent, char* key, tagCFG_VALUE_TXT_S* out)
{
    return fetchText(std::string(parent) + "/" + key, out);
}
int CFG_COM_GetIntParams(char* key, tagCFG_VALUE_INT_S* out) { return fetchNumber(key, out); }
int CFG_COM_GetIntParamByParent(char* parent, char* key, tagCFG_VALUE_INT_S* out)
{
    return fetchNumber(std::string(parent) + "/" + key, out);
}
int CFG_COM_SetTxtParams(char* key, char* value, OSD_BOOL save)
{
    fake::record(fake::format("set %s=%s %d", key, value, save));
    return 0;
}

int CFG_SYSTEM_GetLanguage(char* out)
{
    if (fake::fails("language")) {
        return -1;
    }
    copyText(out, OSD_TEXT_LEN, platform().language);
    return 0;
}

int CFG_LANG_GetString(char* language, char* key, char* out)
{
    fake::record(fake::format("translate %s %s", language, key));
    const auto it = platform().translations.find(key);
    const bool known = it != platform().translations.end() || platform().echo;
    if (fake::fails("translate") || platform().untranslated.count(key) != 0 || !known) {
        return -1;
    }
    copyText(out, OSD_TEXT_LEN, it != platform().translations.end() ? it->second : std::string("t.") + key);
    return 0;
}

int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S* out)
{
    if (platform().garbage) {
        memset(out, 'x', sizeof *out);
    } else {
        snprintf(out->acDeviceType, sizeof out->acDeviceType, "%s", platform().deviceType.c_str());
    }
    return fake::fails("attribute") ? -1 : 0;
}

tinyxml2::XMLDocument* CFG_GetDocByFileName(const char* path, OSD_BOOL read)
{
    fake::record(fake::format("document %s %d", path, read));
    const std::string folder = OSD_RESOURCE_DIR "/menu/";
    const std::string full = path;
    if (fake::fails("document") || full.compare(0, folder.size(), folder) != 0 || full.size() < folder.size() + 9) {
        return nullptr;
    }
    if (platform().build) {
        auto document = std::make_unique<CountedDocument>();
        platform().build(*document);
        return document.release();
    }
    const auto it = platform().pages.find(full.substr(folder.size(), full.size() - folder.size() - 9)); // "_page.xml"
    if (it == platform().pages.end()) {
        return nullptr;
    }
    auto document = std::make_unique<CountedDocument>();
    (void)document->Parse(it->second.c_str()); // a broken text leaves a document without a root
    return document.release();
}

void UTIL_LOG_Print(int level, char* tag, const char* pattern, ...)
{
    char text[1024];
    va_list arguments;
    va_start(arguments, pattern);
    (void)vsnprintf(text, sizeof text, pattern, arguments);
    va_end(arguments);
    platform().log.push_back({level, tag, text});
    fake::record(fake::format("log %d %s", level, text));
}

int MPP_AllocMem(const char* name, uint32_t size, int flag, void* out)
{
    fake::record(fake::format("alloc %s %u %d", name, size, flag));
    if (fake::fails("alloc") || size > 64u << 20) {
        return -1;
    }
    std::vector<unsigned char> bytes(size + 2 * GUARD, GUARD_BYTE);
    std::fill(bytes.begin() + GUARD, bytes.end() - GUARD, FILL_BYTE);
    auto* mem = static_cast<tagOSD_MEM_S*>(out);
    *mem = {0x1122334455667788u, bytes.data() + GUARD, {1, 2}};
    platform().blocks[mem->pvVirAddr] = {name, std::move(bytes)};
    return 0;
}

int MPP_FreeMem(void* out)
{
    auto* mem = static_cast<tagOSD_MEM_S*>(out);
    const auto it = platform().blocks.find(mem->pvVirAddr);
    if (it == platform().blocks.end()) {
        fake::record("release of an unknown block");
        platform().damaged++;
        return -1;
    }
    const auto& [name, bytes] = it->second;
    fake::record("release " + name);
    const auto damaged = [](unsigned char byte) { return byte != GUARD_BYTE; };
    platform().damaged += std::any_of(bytes.begin(), bytes.begin() + GUARD, damaged) ? 1 : 0;
    platform().damaged += std::any_of(bytes.end() - GUARD, bytes.end(), damaged) ? 1 : 0;
    platform().blocks.erase(it);
    return 0;
}

int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S* canvas)
{
    fake::record("create resource");
    platform().canvasAtCreate = *canvas;
    return fake::fails("create") ? -1 : 0;
}

int MPP_MENU_SetMenuCb(int (*update)(OSD_BOOL, OSD_ATTACH_INFO_S*))
{
    fake::record("set callback");
    platform().update = update;
    return 0;
}

int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL show, tagOSD_MENU_CANVAS_S* canvas)
{
    push("push", show, nullptr, canvas);
    return fake::fails("push") ? -1 : 0;
}

int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL show, OSD_ATTACH_INFO_S* attach, tagOSD_MENU_CANVAS_S* canvas)
{
    push("push one", show, attach, canvas);
    return -1; // not read by anybody
}

} // extern "C"
