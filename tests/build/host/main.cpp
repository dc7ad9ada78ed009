// The smallest host: it has no camera, keeps pixels on the heap and knows one page. It opens the menu and looks at what
// is shown. The argument is what to expect: "open", or "refuse" where the library's fonts are not installed.
#include <tinyxml2.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "osd_menu.h"
#include "platform/config_service.h"
#include "platform/log_service.h"
#include "platform/media_service.h"

namespace {

int blocks = 0;
int pushes = 0;
int whitePixels = 0;

constexpr const char* page = R"(<Page Layout="vertical_align" Title="Menu" TitlePos="Left">
  <Item ItemIndex="Model" Ctx="NAME" Attr="CONST_TXT"/>
</Page>)";

void write(char* field, const char* text) { std::snprintf(field, OSD_TEXT_LEN, "%s", text); }

int failures = 0;
void expect(const char* what, int actual, int wanted)
{
    if (actual != wanted) {
        std::printf("%s: %d, expected %d\n", what, actual, wanted);
        failures++;
    }
}

} // namespace

int MPP_AllocMem(const char*, uint32_t size, int, void* block)
{
    static_cast<tagOSD_MEM_S*>(block)->pvVirAddr = std::calloc(1, size);
    blocks++;
    return 0;
}
int MPP_FreeMem(void* block)
{
    std::free(static_cast<tagOSD_MEM_S*>(block)->pvVirAddr);
    blocks--;
    return 0;
}
int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S*) { return 0; }
int MPP_MENU_SetMenuCb(int (*)(OSD_BOOL, OSD_ATTACH_INFO_S*)) { return 0; }
int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL, tagOSD_MENU_CANVAS_S* canvas)
{
    pushes++;
    const auto* pixel = static_cast<const uint32_t*>(canvas->stMem.pvVirAddr);
    for (int i = 0; i < canvas->stMenuRect.w * canvas->stMenuRect.h; i++) {
        whitePixels += (pixel[i] & 0xFFFFFFU) == 0xFFFFFFU ? 1 : 0;
    }
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
    document->Parse(page);
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

int main(int argc, char** argv)
{
    const bool open = argc > 1 && std::strcmp(argv[1], "open") == 0;
    tagOSD_MENU_CFG_S config = {{0.2F, 0.2F, 0.4F, 0.4F}, 2, 0, 0};
    expect("OSD_MENU_InitOpensourceRes", OSD_MENU_InitOpensourceRes(), 0);
    expect("OSD_MENU_InitSdkRes",
           OSD_MENU_InitSdkRes(
               &config, [](tagITEM_NODE_S*) { return 0; }, nullptr),
           open ? 0 : -1);
    expect("blocks of memory held", blocks, open ? 2 : 0);
    OSD_MENU_OpenMenu();
    expect("pushes", pushes, open ? 1 : 0);
    expect("white text shown", whitePixels > 0, open);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
