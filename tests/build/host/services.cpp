#include "tests/build/host/services.h"

#include <tinyxml2.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "platform/config_service.h"
#include "platform/log_service.h"
#include "platform/media_service.h"

std::atomic<int> g_blocks{0};
const char* g_page = "";
void (*g_pushed)(OSD_BOOL, const tagOSD_MENU_CANVAS_S&) = nullptr;

std::atomic<int> g_failures{0};

void expect(const char* what, int actual, int wanted)
{
    if (actual != wanted) {
        std::printf("%s: %d, expected %d\n", what, actual, wanted);
        g_failures++;
    }
}

static void write(char* field, const char* text) { std::snprintf(field, OSD_TEXT_LEN, "%s", text); }

int MPP_AllocMem(const char*, uint32_t size, int, void* block)
{
    static_cast<tagOSD_MEM_S*>(block)->pvVirAddr = std::calloc(1, size);
    g_blocks.fetch_add(1, std::memory_order_relaxed);
    return 0;
}
int MPP_FreeMem(void* block)
{
    std::free(static_cast<tagOSD_MEM_S*>(block)->pvVirAddr);
    g_blocks.fetch_sub(1, std::memory_order_relaxed);
    return 0;
}
int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S*) { return 0; }
int MPP_MENU_SetMenuCb(int (*)(OSD_BOOL, OSD_ATTACH_INFO_S*)) { return 0; }
int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL show, tagOSD_MENU_CANVAS_S* canvas)
{
    g_pushed(show, *canvas);
    return 0;
}
int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL, OSD_ATTACH_INFO_S*, tagOSD_MENU_CANVAS_S*) { return 0; }

int CFG_COM_GetTxtParams(char*, tagCFG_VALUE_TXT_S*) { return -1; }
int CFG_COM_GetTxtParamByParent(char*, char*, tagCFG_VALUE_TXT_S*) { return -1; }
int CFG_COM_GetIntParams(char*, tagCFG_VALUE_INT_S*) { return -1; }
int CFG_COM_GetIntParamByParent(char*, char*, tagCFG_VALUE_INT_S*) { return -1; }
int CFG_COM_SetTxtParams(char*, char*, OSD_BOOL) { return 0; }
int CFG_SYSTEM_GetLanguage(char* language)
{
    write(language, "English");
    return 0;
}
int CFG_LANG_GetString(char*, char* key, char* out)
{
    write(out, key);
    return 0;
}
int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S*) { return 0; }
tinyxml2::XMLDocument* CFG_GetDocByFileName(const char*, OSD_BOOL)
{
    auto* document = new tinyxml2::XMLDocument;
    document->Parse(g_page);
    return document;
}
void UTIL_LOG_Print(int, char* tag, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::fputs(tag, stdout);
    std::vprintf(format, arguments);
    va_end(arguments);
}
