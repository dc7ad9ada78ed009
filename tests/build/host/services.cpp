#include "tests/build/host/services.h"

#include <tinyxml2.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "osd_menu.h"
#include "platform/config_service.h"
#include "platform/log_service.h"
#include "platform/media_service.h"

static constexpr const char* PAGE = R"(<Page Layout="vertical_tolvane_align" Title="Menu" TitlePos="Left">
  <Item ItemIndex="Mode" Ctx="NAME_VAL" Attr="SUBITEM">
    <Option ModeIndex="On"><Item ItemIndex="Level" Ctx="NAME_BAR_VAL" Attr="COMMON" ValType="NUMERICAL"/></Option>
    <Option ModeIndex="Off"/>
  </Item>
  <Item ItemIndex="Model" Ctx="NAME" Attr="CONST_TXT"/>
</Page>)";

std::atomic<int> g_blocks{0};
void (*g_pushed)(const tagOSD_MENU_CANVAS_S&) = nullptr;
std::atomic<int> g_failures{0};

int startMenu()
{
    static tagOSD_MENU_CFG_S config = {{0.2F, 0.2F, 0.3F, 0.3F}, 2, 0, 0};
    expect("OSD_MENU_InitOpensourceRes", OSD_MENU_InitOpensourceRes(), 0);
    return OSD_MENU_InitSdkRes(
        &config, [](tagITEM_NODE_S*) { return 0; }, nullptr);
}

void expect(const char* what, int actual, int wanted)
{
    if (actual != wanted) {
        std::printf("%s: %d, expected %d\n", what, actual, wanted);
        g_failures++;
    }
}

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
int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL, tagOSD_MENU_CANVAS_S* canvas)
{
    g_pushed(*canvas);
    return 0;
}
int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL, OSD_ATTACH_INFO_S*, tagOSD_MENU_CANVAS_S*) { return 0; }

int CFG_COM_GetTxtParams(char*, tagCFG_VALUE_TXT_S*) { return -1; }
int CFG_COM_GetTxtParamByParent(char*, char*, tagCFG_VALUE_TXT_S*) { return -1; }
int CFG_COM_GetIntParams(char*, tagCFG_VALUE_INT_S*) { return -1; }
int CFG_COM_GetIntParamByParent(char*, char*, tagCFG_VALUE_INT_S*) { return -1; }
int CFG_COM_SetTxtParams(char*, char*, OSD_BOOL) { return 0; }
int CFG_SYSTEM_GetLanguage(char* language) { return std::snprintf(language, OSD_TEXT_LEN, "English") < 0; }
int CFG_LANG_GetString(char*, char* key, char* out) { return std::snprintf(out, OSD_TEXT_LEN, "%s", key) < 0; }
int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S*) { return 0; }
tinyxml2::XMLDocument* CFG_GetDocByFileName(const char*, OSD_BOOL)
{
    auto* document = new tinyxml2::XMLDocument;
    document->Parse(PAGE);
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
