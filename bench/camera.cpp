#include "bench/camera.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

#include "bench/page.h"
#include "osd_page.h"
#include "platform/config_service.h"
#include "platform/log_service.h"
#include "platform/media_service.h"

namespace bench {
namespace {

// What the camera answers. Bars stand in the middle of their steps.
constexpr char option_value[] = "Automatic";
constexpr char address_value[] = "192.168.100.120";
constexpr char status_value[] = "1.2.3.4";
constexpr tagCFG_VALUE_INT_S bar_value = {0, 100, 0, 1, 50};

std::map<std::string, std::string, std::less<>> page_files; // name of the file to its path

int apply_nothing(tagITEM_NODE_S* /*item*/) { return 0; }

void answer_version(void* /*user*/, tagOSD_MENU_GET_EVENT_E /*event*/, tagOSD_MENU_CONTROL_PARAM_S* answer)
{
    std::strcpy(answer->acText, status_value);
}

} // namespace

bool in_service = false;

PageFolder::PageFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "osdmenu-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("cannot make a folder for the page files: " + pattern);
    }
    folder_ = pattern;
    page_files[file_of(camera_page)] = OSD_RESOURCE_DIR "/menu/" + file_of(camera_page);
    for (const Page& page : pages()) {
        const std::string file = file_of(page.name);
        const std::string path = folder_ / file;
        std::ofstream(path) << page_xml(page);
        page_files[file] = path;
    }
}

PageFolder::~PageFolder()
{
    std::error_code ignored; // a left-over folder of page files does no harm
    std::filesystem::remove_all(folder_, ignored);
}

int start_library(bool is_4k, uint32_t pixel_format)
{
    tagOSD_MENU_CFG_S config = {{0.0f, 0.0f, 0.5f, 1.0f}, pixel_format, is_4k ? 1 : 0, 0};
    const int result = OSD_MENU_InitSdkRes(&config, apply_nothing, nullptr);
    Osd_GetVersionCallback(answer_version, nullptr);
    return result;
}

void open_page(const std::string& name)
{
    close_page();
    OSD_MENU_ParseXml(const_cast<char*>(name.c_str()), &gstPageMgr.astPage[0]);
    gstPageMgr.s32PageCnt = 1;
}

void close_page() { osdMenuReleaseSinglePage(); }

std::string file_of(const std::string& page) { return page + "_page.xml"; }

std::unique_ptr<tinyxml2::XMLDocument> load_document(std::string_view file)
{
    const auto found = page_files.find(file);
    if (found == page_files.end()) {
        return nullptr;
    }
    auto document = std::make_unique<tinyxml2::XMLDocument>();
    return document->LoadFile(found->second.c_str()) == tinyxml2::XML_SUCCESS ? std::move(document) : nullptr;
}

std::FILE* split_output()
{
    std::FILE* own = fdopen(dup(STDOUT_FILENO), "w");
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    close(nowhere);
    return own;
}

} // namespace bench

extern "C" {

int CFG_COM_GetTxtParams(char* key, tagCFG_VALUE_TXT_S* value)
{
    const bool is_address = key[0] == 'A'; // "Address 3"
    std::strcpy(value->acList, "Automatic:Manual:Off");
    std::strcpy(value->acValue, is_address ? bench::address_value : bench::option_value);
    return 0;
}

int CFG_COM_GetTxtParamByParent(char* /*parent*/, char* key, tagCFG_VALUE_TXT_S* value)
{
    return CFG_COM_GetTxtParams(key, value);
}

int CFG_COM_GetIntParams(char* /*key*/, tagCFG_VALUE_INT_S* value)
{
    *value = bench::bar_value;
    return 0;
}

int CFG_COM_GetIntParamByParent(char* /*parent*/, char* key, tagCFG_VALUE_INT_S* value)
{
    return CFG_COM_GetIntParams(key, value);
}

int CFG_COM_SetTxtParams(char* /*key*/, char* /*value*/, OSD_BOOL /*save*/) { return 0; }

int CFG_SYSTEM_GetLanguage(char* language)
{
    std::strcpy(language, "English");
    return 0;
}

int CFG_LANG_GetString(char* /*language*/, char* key, char* out)
{
    std::strcpy(out, key); // the benchmark's keys are shorter than the field
    return 0;
}

tinyxml2::XMLDocument* CFG_GetDocByFileName(const char* path, OSD_BOOL /*read*/)
{
    bench::in_service = true;
    tinyxml2::XMLDocument* document = bench::load_document(std::strrchr(path, '/') + 1).release();
    bench::in_service = false;
    return document;
}

int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S* /*attributes*/) { return 0; }

void UTIL_LOG_Print(int /*level*/, char* /*tag*/, const char* /*format*/, ...) {}

int MPP_AllocMem(const char* /*name*/, uint32_t size, int /*flag*/, void* block)
{
    auto* memory = static_cast<tagOSD_MEM_S*>(block);
    memory->pvVirAddr = std::calloc(1, size);
    return memory->pvVirAddr != nullptr ? 0 : -1;
}

int MPP_FreeMem(void* block)
{
    std::free(static_cast<tagOSD_MEM_S*>(block)->pvVirAddr);
    return 0;
}

int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S* /*canvas*/) { return 0; }

int MPP_MENU_SetMenuCb(int (* /*update*/)(OSD_BOOL, OSD_ATTACH_INFO_S*)) { return 0; }

int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL /*show*/, tagOSD_MENU_CANVAS_S* /*canvas*/) { return 0; }

int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL /*show*/, OSD_ATTACH_INFO_S* /*attach*/, tagOSD_MENU_CANVAS_S* /*canvas*/)
{
    return 0;
}
}
