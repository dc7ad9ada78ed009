#include "simulator/camera/services.h"

#include <array>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <thread>

#include <tinyxml2.h>

#include "platform/config_service.h"
#include "platform/log_service.h"
#include "platform/media_service.h"
#include "simulator/base/guard.h"
#include "simulator/base/log.h"
#include "simulator/camera/camera.h"

namespace sim {
namespace {

constexpr int ok = 0;
constexpr int failed = -1;
constexpr std::chrono::milliseconds slow_call{150};
constexpr std::int32_t no_number = std::numeric_limits<std::int32_t>::max(); // outside every range that is in use

Camera* current_camera = nullptr;

/// Runs the body of a service with the current camera.
template <typename Body>
int serve(const char* service, Body body)
{
    if (current_camera == nullptr) {
        log_line(LogLevel::Error, service, "there is no camera");
        return failed;
    }
    return guarded(service, failed, [&] { return body(*current_camera); });
}

/// Copies a text into a field of a record, which stays zero-terminated.
template <std::size_t N>
void fill_field(char (&field)[N], const std::string& text)
{
    std::snprintf(field, N, "%s", text.c_str());
}

std::string text_or_empty(const char* text) { return text == nullptr ? "" : text; }

const Setting* find_setting(Camera& camera, const SettingId& id, bool number)
{
    const Setting* setting = camera.settings.find(id);
    if (setting == nullptr) {
        log_line(LogLevel::Warning, "settings", "no setting " + to_string(id));
        return nullptr;
    }
    const bool is_number = setting->kind == SettingKind::Integer || setting->kind == SettingKind::HexColor;
    if (is_number != number) {
        log_line(LogLevel::Warning, "settings",
                 "setting " + to_string(id) + " is " + (number ? "no" : "a") + " number");
        return nullptr;
    }
    return setting;
}

/// Runs the body of a settings call, under the faults of settings.
template <typename Body>
int serve_setting(Body body)
{
    return serve("settings", [&](Camera& camera) {
        if (camera.faults.is_on(Fault::SettingsSlow)) {
            std::this_thread::sleep_for(slow_call);
        }
        return body(camera);
    });
}

bool refuses(Camera& camera, Fault fault, const char* tag, const std::string& what)
{
    if (!camera.faults.is_on(fault)) {
        return false;
    }
    log_line(LogLevel::Warning, tag,
             what + " is refused (fault " + all_faults()[static_cast<std::size_t>(fault)].name + ")");
    return true;
}

/// An option that is in no list, and a list that fills its field to the last byte.
void answer_nonsense(tagCFG_VALUE_TXT_S& value)
{
    fill_field(value.acValue, "NoSuchOption");
    for (std::size_t i = 0; i < sizeof value.acList; ++i) {
        value.acList[i] = i % 12 == 11 ? ':' : 'x';
    }
}

/// Runs the body of a call for the value of a setting, a number or none.
template <typename Value, typename Body>
int answer_setting(const char* parent, const char* key, bool number, Value* value, Body body)
{
    return serve_setting([&](Camera& camera) {
        const SettingId id{text_or_empty(parent), text_or_empty(key)};
        const bool refused = refuses(camera, Fault::SettingsRefusing, "settings", "setting " + to_string(id));
        const Setting* setting = refused ? nullptr : find_setting(camera, id, number);
        if (setting == nullptr || value == nullptr) {
            return failed;
        }
        body(camera, *setting, camera.faults.is_on(Fault::SettingsOutOfRange));
        return ok;
    });
}

int get_text(const char* parent, const char* key, tagCFG_VALUE_TXT_S* value)
{
    return answer_setting(parent, key, false, value, [value](Camera& camera, const Setting& setting, bool nonsense) {
        if (nonsense) {
            answer_nonsense(*value);
            return;
        }
        std::string list;
        for (const std::string& option : setting.options) {
            list += (list.empty() ? "" : ":") + option;
        }
        fill_field(value->acList, list);
        fill_field(value->acValue, camera.settings.value(setting.id));
    });
}

int get_number(const char* parent, const char* key, tagCFG_VALUE_INT_S* value)
{
    return answer_setting(parent, key, true, value, [value](Camera& camera, const Setting& setting, bool nonsense) {
        const std::int32_t present = nonsense ? no_number : camera.settings.number(setting.id);
        *value = {setting.min, setting.max, 0, setting.step, present};
    });
}

int push(bool show, std::optional<int> channel, const tagOSD_MENU_CANVAS_S* canvas)
{
    return serve("media", [&](Camera& camera) {
        if (canvas == nullptr ||
            !camera.video.push(show, *canvas, camera.memory.size_at(canvas->stMem.pvVirAddr), channel)) {
            return failed;
        }
        if (!channel) {
            camera.events.tell({show ? "show" : "hide", ""});
        }
        return ok;
    });
}

} // namespace

void set_current_camera(Camera* camera) { current_camera = camera; }

Camera* Camera::current() { return current_camera; }

} // namespace sim

using namespace sim;

int CFG_COM_GetTxtParams(char* pcKey, tagCFG_VALUE_TXT_S* pstValue) { return get_text(nullptr, pcKey, pstValue); }

int CFG_COM_GetTxtParamByParent(char* pcParent, char* pcKey, tagCFG_VALUE_TXT_S* pstValue)
{
    return get_text(pcParent, pcKey, pstValue);
}

int CFG_COM_GetIntParams(char* pcKey, tagCFG_VALUE_INT_S* pstValue) { return get_number(nullptr, pcKey, pstValue); }

int CFG_COM_GetIntParamByParent(char* pcParent, char* pcKey, tagCFG_VALUE_INT_S* pstValue)
{
    return get_number(pcParent, pcKey, pstValue);
}

int CFG_COM_SetTxtParams(char* pcKey, char* pcValue, OSD_BOOL /*bSave*/)
{
    return serve_setting([&](Camera& camera) {
        const SettingId id{"", text_or_empty(pcKey)};
        const std::string value = text_or_empty(pcValue);
        camera.events.tell({"set", id.key + "=" + value});
        if (camera.settings.find(id) == nullptr) {
            // Also the usual case of a page's confirm button, which the menu stores with the page's values.
            log_line(LogLevel::Info, "settings", "nothing to store for '" + id.key + "'");
            return failed;
        }
        camera.settings.set(id, value);
        return ok;
    });
}

int CFG_SYSTEM_GetLanguage(char* pcLanguage)
{
    return serve("language", [&](Camera& camera) {
        if (refuses(camera, Fault::LanguageRefusing, "language", "the language")) {
            return failed;
        }
        std::snprintf(pcLanguage, OSD_TEXT_LEN, "%s", camera.language().c_str());
        return ok;
    });
}

int CFG_LANG_GetString(char* pcLanguage, char* pcKey, char* pcOut)
{
    return serve("language", [&](Camera& camera) {
        if (refuses(camera, Fault::LanguageRefusing, "language", "a text")) {
            return failed;
        }
        const std::string* text = camera.texts.translate(text_or_empty(pcLanguage), text_or_empty(pcKey));
        if (text == nullptr) {
            return failed;
        }
        std::memcpy(pcOut, text->c_str(), text->size() + 1); // 31 bytes at most, checked when the file was read
        return ok;
    });
}

tinyxml2::XMLDocument* CFG_GetDocByFileName(const char* pcPath, OSD_BOOL /*bRead*/)
{
    tinyxml2::XMLDocument* const none = nullptr;
    return guarded("pages", none, [&] {
        if (current_camera == nullptr) {
            return none;
        }
        const std::filesystem::path path = text_or_empty(pcPath);
        auto document = current_camera->pages.open(path);
        if (document != nullptr) {
            current_camera->events.tell({"page", page_name(path)});
        }
        return document.release();
    });
}

int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S* pstAttr)
{
    return serve("device", [&](Camera& camera) {
        fill_field(pstAttr->acDeviceType, camera.definitions().facts.at("DeviceType"));
        return ok;
    });
}

void UTIL_LOG_Print(int s32Level, char* pcTag, const char* pcFormat, ...)
{
    std::array<char, 512> text{};
    va_list arguments;
    va_start(arguments, pcFormat);
    (void)std::vsnprintf(text.data(), text.size(), pcFormat, arguments);
    va_end(arguments);
    log_line(static_cast<LogLevel>(s32Level), pcTag == nullptr ? "" : pcTag, text.data());
}

int MPP_AllocMem(const char* pcName, uint32_t u32Size, int /*s32Flag*/, void* pstBlock)
{
    return serve("media", [&](Camera& camera) {
        auto* block = static_cast<tagOSD_MEM_S*>(pstBlock);
        const bool exhausted = camera.faults.is_on(Fault::MemoryExhausted);
        if (block != nullptr && !exhausted && camera.memory.allocate(text_or_empty(pcName), u32Size, *block)) {
            return ok;
        }
        log_line(LogLevel::Error, "media",
                 "no block of " + std::to_string(u32Size) + " bytes" + (exhausted ? " (fault memory-exhausted)" : ""));
        return failed;
    });
}

int MPP_FreeMem(void* pstBlock)
{
    return serve("media", [&](Camera& camera) {
        auto* block = static_cast<tagOSD_MEM_S*>(pstBlock);
        if (block != nullptr && camera.memory.release(*block)) {
            return ok;
        }
        log_line(LogLevel::Error, "media", "a block is given back that is not handed out");
        return failed;
    });
}

int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S* pstCanvas)
{
    return serve("media", [&](Camera&) {
        // Refuses here what no push could show, so that the menu fails at its start and not at its first page.
        const char* problem = pstCanvas == nullptr ? "there is none" : canvas_problem(*pstCanvas, SIZE_MAX);
        if (problem != nullptr) {
            log_line(LogLevel::Error, "media", std::string("the menu's canvas is refused: ") + problem);
        }
        return problem == nullptr ? ok : failed;
    });
}

int MPP_MENU_SetMenuCb(int (*pfnUpdate)(OSD_BOOL, OSD_ATTACH_INFO_S*))
{
    return serve("media", [&](Camera& camera) {
        camera.video.set_menu_refresh(pfnUpdate);
        return ok;
    });
}

int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL bShow, tagOSD_MENU_CANVAS_S* pstCanvas)
{
    return push(bShow == 1, std::nullopt, pstCanvas);
}

int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach, tagOSD_MENU_CANVAS_S* pstCanvas)
{
    return pstAttach == nullptr ? failed : push(bShow == 1, pstAttach->channel, pstCanvas);
}
