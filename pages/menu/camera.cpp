#include "pages/menu/camera.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "platform/config_service.h"
#include "platform/log_service.h"
#include "platform/media_service.h"

namespace pages {
namespace {

constexpr int ok = 0;
constexpr int failed = -1;

/// Copies a text into a field of a record, which stays zero-terminated.
template <std::size_t N>
void fill_field(char (&field)[N], const std::string& text)
{
    (void)std::snprintf(field, N, "%s", text.c_str());
}

const std::string& fact(const std::string& name)
{
    static const std::string none;
    const auto& facts = camera().folder().definitions.facts;
    const auto found = facts.find(name);
    return found == facts.end() ? none : found->second;
}

int get_text(const char* parent, const char* key, tagCFG_VALUE_TXT_S* value)
{
    const Setting* setting = camera().find(parent, key);
    if (setting == nullptr) {
        return failed;
    }
    std::string list;
    for (const std::string& option : setting->options) {
        list += (list.empty() ? "" : ":") + option;
    }
    fill_field(value->acList, list);
    fill_field(value->acValue, camera().value_of(*setting));
    return ok;
}

int get_number(const char* parent, const char* key, tagCFG_VALUE_INT_S* value)
{
    const Setting* setting = camera().find(parent, key);
    if (setting == nullptr) {
        return failed;
    }
    *value = {setting->min, setting->max, 0, setting->step, number_of(*setting, camera().value_of(*setting))};
    return ok;
}

} // namespace

Camera& camera()
{
    static Camera only;
    return only;
}

void Camera::begin(const ResourceFolder& folder)
{
    folder_ = &folder;
    drawing_ = false;
    values_.clear();
    lines_.clear();
}

const Setting* Camera::find(const char* parent, const char* key) const
{
    const SettingId id{parent == nullptr ? "" : parent, key};
    const auto found = folder_->definitions.settings.find(id);
    if (found != folder_->definitions.settings.end()) {
        return &found->second;
    }
    return nullptr;
}

const std::string& Camera::value_of(const Setting& setting) const
{
    const auto found = values_.find(setting.id);
    return found == values_.end() ? setting.default_text : found->second;
}

int Camera::apply(tagITEM_NODE_S* item)
{
    const Setting* setting = camera().find(parent_of_zone(item->acDataZone), item->acItemIndex);
    if (setting == nullptr) {
        return ok;
    }
    std::string value;
    if (item->enAttr == EDITABLE) {
        value = item->acValue[0];
    } else if (item->enValType == NUMERICAL) {
        value = text_of(*setting, item->s32Cur);
    } else if (item->s32CurIdx >= 0 && item->s32CurIdx < OSD_OPTION_MAX) {
        value = item->acValueKey[item->s32CurIdx];
    }
    if (problem_with(*setting, value).empty()) {
        camera().store(*setting, value);
    }
    return ok;
}

const char* Camera::parent_of_zone(const char* zone)
{
    const auto& zones = camera().folder().definitions.zones;
    const auto found = zones.find(zone);
    return found == zones.end() ? nullptr : found->second.c_str();
}

void Camera::answer(void* /*user*/, tagOSD_MENU_GET_EVENT_E event, tagOSD_MENU_CONTROL_PARAM_S* answer)
{
    const std::string name = fact_of_event(event);
    const Setting* color = name == custom_color ? camera().find("", custom_color) : nullptr;
    fill_field(answer->acText, color == nullptr ? fact(name) : camera().value_of(*color));
}

} // namespace pages

using namespace pages;

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
    const Setting* setting = camera().find(nullptr, pcKey);
    if (setting == nullptr || !problem_with(*setting, pcValue).empty()) {
        return failed;
    }
    camera().store(*setting, pcValue);
    return ok;
}

int CFG_SYSTEM_GetLanguage(char* pcLanguage)
{
    (void)std::snprintf(pcLanguage, OSD_TEXT_LEN, "%s", camera().view().language.c_str());
    return ok;
}

int CFG_LANG_GetString(char* pcLanguage, char* pcKey, char* pcOut)
{
    const auto& languages = camera().folder().languages;
    const auto language = languages.find(pcLanguage);
    if (language == languages.end()) {
        return failed;
    }
    const auto text = language->second.find(pcKey);
    if (text == language->second.end()) {
        return failed;
    }
    const std::string& words = text->second.text;
    std::memcpy(pcOut, words.c_str(), words.size() + 1); // 31 bytes at most, checked when the file was read
    return ok;
}

tinyxml2::XMLDocument* CFG_GetDocByFileName(const char* pcPath, OSD_BOOL /*bRead*/)
{
    const auto& pages = camera().folder().pages;
    const auto page = pages.find(page_name(pcPath));
    if (page == pages.end()) {
        return nullptr;
    }
    auto document = std::make_unique<tinyxml2::XMLDocument>();
    const std::string& text = page->second.text;
    return document->Parse(text.data(), text.size()) == tinyxml2::XML_SUCCESS ? document.release() : nullptr;
}

int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S* pstAttr)
{
    fill_field(pstAttr->acDeviceType, fact("DeviceType"));
    return ok;
}

void UTIL_LOG_Print(int s32Level, char* /*pcTag*/, const char* pcFormat, ...)
{
    std::array<char, 512> text{};
    va_list arguments;
    va_start(arguments, pcFormat);
    (void)std::vsnprintf(text.data(), text.size(), pcFormat, arguments);
    va_end(arguments);
    if (s32Level == OSD_LOG_LEVEL_ERR) {
        camera().add_line(text.data());
    }
}

int MPP_AllocMem(const char* /*pcName*/, uint32_t u32Size, int /*s32Flag*/, void* pstBlock)
{
    auto* block = static_cast<tagOSD_MEM_S*>(pstBlock);
    block->pvVirAddr = std::calloc(u32Size, 1);
    return block->pvVirAddr != nullptr ? ok : failed;
}

int MPP_FreeMem(void* pstBlock)
{
    auto* block = static_cast<tagOSD_MEM_S*>(pstBlock);
    std::free(block->pvVirAddr);
    *block = {};
    return ok;
}

int MPP_MENU_CreateSdkResource(tagOSD_MENU_CANVAS_S* /*pstCanvas*/) { return ok; }

int MPP_MENU_SetMenuCb(int (* /*pfnUpdate*/)(OSD_BOOL, OSD_ATTACH_INFO_S*)) { return ok; }

int MPP_MENU_UpdateCanvasToAllChns(OSD_BOOL /*bShow*/, tagOSD_MENU_CANVAS_S* /*pstCanvas*/) { return ok; }

int MPP_MENU_UpdateCanvasToOneChn(OSD_BOOL /*bShow*/, OSD_ATTACH_INFO_S* /*pstAttach*/,
                                  tagOSD_MENU_CANVAS_S* /*pstCanvas*/)
{
    return ok;
}
