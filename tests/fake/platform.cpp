#include "tests/fake/platform.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <memory>
#include <tinyxml2.h>

#include "platform/log_service.h"
#include "platform/media_service.h"
#include "tests/fake/calls.h"

using fake::fails;
using fake::format;
using fake::platform;
using fake::record;

namespace {

constexpr int GUARD = 64; // bytes behind each block
constexpr unsigned char GUARD_BYTE = 0xC3;
constexpr unsigned char FILL_BYTE = 0xA5;

struct CountedDocument : tinyxml2::XMLDocument {
    CountedDocument() { platform().documents++; }
    ~CountedDocument() override { platform().documents--; }
};

void copyText(char* out, size_t size, const std::string& text)
{
    snprintf(out, size, "%s", text.c_str());
    if (platform().garbage) {
        memset(out, 'x', size);
    }
}

template <typename Record>
int fetch(const char* call, const std::map<std::string, Record>& all, const std::string& key, Record* out)
{
    record(std::string(call) + " " + key);
    const auto it = all.find(key);
    if (!fails(call) && it != all.end()) {
        *out = it->second;
    }
    return -1; // not read by anybody
}

int push(const char* call, OSD_BOOL show, const void* attach, const tagOSD_MENU_CANVAS_S* canvas)
{
    record(format("%s %d", call, show));
    const bool locked = pthread_mutex_trylock(&g_stMutex) != 0;
    if (!locked) {
        (void)pthread_mutex_unlock(&g_stMutex);
    }
    const auto it = platform().blocks.find(canvas->stMem.pvVirAddr);
    const auto bytes = it != platform().blocks.end() ? it->second.second : std::vector<unsigned char>(GUARD);
    platform().pushes.push_back({locked, canvas, attach, {bytes.begin(), bytes.end() - GUARD}});
    return fails(call) ? -1 : 0;
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
    tagCFG_VALUE_TXT_S& text = platform().texts[key] = {};
    snprintf(text.acList, sizeof text.acList, "%s", list);
    snprintf(text.acValue, sizeof text.acValue, "%s", value);
}

void setNumber(const std::string& key, int min, int max, int step, int cur)
{
    platform().numbers[key] = {min, max, 7, step, cur};
}

int business(tagITEM_NODE_S* item)
{
    if (platform().host) {
        platform().host(item);
    }
    return -1; // not read by anybody
}

const char* dataZoneParent(const char* zone)
{
    record(std::string("zone ") + zone);
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

int CFG_COM_GetTxtParams(char* key, tagCFG_VALUE_TXT_S* out) { return fetch("text", platform().texts, key, out); }
int CFG_COM_GetTxtParamByParent(char* parent, char* key, tagCFG_VALUE_TXT_S* out)
{
    return fetch("text", platform().texts, format("%s/%s", parent, key), out);
}
int CFG_COM_GetIntParams(char* key, tagCFG_VALUE_INT_S* out) { return fetch("number", platform().numbers, key, out); }
int CFG_COM_GetIntParamByParent(char* parent, char* key, tagCFG_VALUE_INT_S* out)
{
    return fetch("number", platform().numbers, format("%s/%s", parent, key), out);
}

int CFG_COM_SetTxtParams(char* key, char* value, OSD_BOOL save)
{
    record(format("set %s=%s %d", key, value, save));
    return 0;
}

int CFG_SYSTEM_GetLanguage(char* out)
{
    record("language");
    copyText(out, OSD_TEXT_LEN, platform().language);
    return fails("language") ? -1 : 0;
}

int CFG_LANG_GetString(char* language, char* key, char* out)
{
    if (fails("translate") || platform().untranslated.count(key) != 0) {
        return -1;
    }
    const auto word = platform().words.find(key);
    const std::string prefix = strcmp(language, "German") == 0 ? "d." : platform().translated;
    copyText(out, OSD_TEXT_LEN, word != platform().words.end() ? word->second : prefix + key);
    return 0;
}

int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S* out)
{
    copyText(out->acDeviceType, sizeof out->acDeviceType, platform().deviceType);
    return fails("attribute") ? -1 : 0;
}

tinyxml2::XMLDocument* CFG_GetDocByFileName(const char* path, OSD_BOOL read)
{
    record(format("document %s %d", path, read));
    const std::string file = fake::baseName(path);
    const auto it = platform().pages.find(file.substr(0, file.rfind("_page.xml")));
    if (fails("document") || it == platform().pages.end()) {
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
    platform().log.emplace_back(tag);
    record(format("log %d %s", level, text));
}

int MPP_AllocMem(const char* name, uint32_t size, int flag, void* out)
{
    record(format("alloc %s %u %d", name, size, flag));
    if (fails("alloc") || size > 64u << 20) {
        return -1;
    }
    std::vector<unsigned char> bytes(size, FILL_BYTE);
    bytes.resize(size + GUARD, GUARD_BYTE);
    auto* mem = static_cast<tagOSD_MEM_S*>(out);
    *mem = {0x1122334455667788u, bytes.data(), {1, 2}};
    platform().blocks[mem->pvVirAddr] = {name, std::move(bytes)};
    return 0;
}

int MPP_FreeMem(void* out)
{
    const auto it = platform().blocks.find(static_cast<tagOSD_MEM_S*>(out)->pvVirAddr);
    if (it == platform().blocks.end()) {
        platform().damaged++;
        return -1;
    }
    const auto& [name, bytes] = it->second;
    record("release " + name);
    const bool intact = std::count(bytes.end() - GUARD, bytes.end(), GUARD_BYTE) == GUARD;
    platform().damaged += intact ? 0 : 1;
    platform().blocks.erase(it);
    return 0;
}

int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S* canvas)
{
    record(format("create resource %dx%d", canvas->stMenuRect.w, canvas->stMenuRect.h));
    return fails("create") ? -1 : 0;
}

int MPP_MENU_SetMenuCb(int (*update)(OSD_BOOL, OSD_ATTACH_INFO_S*))
{
    record("set callback");
    platform().update = update;
    return 0;
}

int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL show, tagOSD_MENU_CANVAS_S* canvas)
{
    const int result = push("push", show, nullptr, canvas);
    if (platform().pushed) {
        platform().pushed(show);
    }
    return result;
}

int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL show, OSD_ATTACH_INFO_S* attach, tagOSD_MENU_CANVAS_S* canvas)
{
    return push("push one", show, attach, canvas);
}

// The library's holds cost nothing here.
unsigned sleep(unsigned seconds)
{
    record(format("sleep %u", seconds));
    return 0;
}

} // extern "C"
