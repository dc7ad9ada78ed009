#include "simulator/host/callbacks.h"

#include <array>
#include <cstdio>
#include <optional>
#include <string>

#include "simulator/base/guard.h"
#include "simulator/base/log.h"
#include "simulator/camera/camera.h"
#include "simulator/host/actions.h"

namespace sim {
namespace {

/// Items that show one byte of the custom color.
struct ColorPart {
    const char* item;
    int shift;
};
constexpr ColorPart color_parts[] = {{"LedCustomRed", 16}, {"LedCustomGreen", 8}};

/// The attributes whose items carry a value of a setting; all others are texts and buttons.
bool carries_value(const tagITEM_NODE_S& item)
{
    switch (item.enAttr) {
    case KEY_WITH_MSG:
    case COMMON:
    case EDITABLE:
    case SUBITEM:
    case MSG_WITH_SUBITEM:
        return true;
    default: // the record is not the simulator's, so any number can stand here
        return false;
    }
}

std::string value_of(const tagITEM_NODE_S& item)
{
    if (item.enAttr == EDITABLE) {
        return item.acValue[0];
    }
    if (item.enValType == NUMERICAL) {
        return std::to_string(item.s32Cur);
    }
    const bool in_range = item.s32CurIdx >= 0 && item.s32CurIdx < OSD_OPTION_MAX;
    return in_range ? item.acValueKey[item.s32CurIdx] : "";
}

SettingId setting_of(const tagITEM_NODE_S& item, const std::string& key)
{
    const char* parent = parent_of_zone(item.acDataZone);
    return {parent == nullptr ? "" : parent, key};
}

void store(Camera& camera, const SettingId& id, const std::string& text)
{
    camera.settings.set(id, text);
    log_line(LogLevel::Info, "business", to_string(id) + " is now " + text);
}

/// Puts one byte into the custom color; false when the item isn't part of it.
bool store_color_part(Camera& camera, const tagITEM_NODE_S& item)
{
    for (const ColorPart& part : color_parts) {
        if (std::string(item.acItemIndex) == part.item) {
            const SettingId id = setting_of(item, custom_color);
            const Setting* setting = camera.settings.find(id);
            if (setting == nullptr) {
                return false;
            }
            const auto old = static_cast<unsigned>(camera.settings.number(id));
            const unsigned byte = static_cast<unsigned>(item.s32Cur) & 0xFFU;
            const unsigned color = (old & ~(0xFFU << part.shift)) | byte << part.shift;
            store(camera, id, text_of(*setting, static_cast<std::int32_t>(color)));
            return true;
        }
    }
    return false;
}

void store_value(Camera& camera, const tagITEM_NODE_S& item)
{
    if (!store_color_part(camera, item)) {
        store(camera, setting_of(item, item.acItemIndex), value_of(item));
    }
}

std::string answer_text(Camera& camera, const std::string& name)
{
    if (name == custom_color) {
        const Setting* color = camera.settings.find_key(name);
        return color == nullptr ? "" : camera.settings.value(color->id);
    }
    return camera.definitions().facts.at(name);
}

} // namespace

int apply_item(tagITEM_NODE_S* item)
{
    Camera* camera = Camera::current();
    if (camera == nullptr || item == nullptr) {
        log_line(LogLevel::Warning, "business", camera == nullptr ? "there is no camera" : "there is no item");
        return -1;
    }
    return guarded("business", -1, [&] {
        const std::string key = item->acItemIndex;
        const bool value = carries_value(*item);
        camera->events.tell({"business", value ? key + "=" + value_of(*item) : key});
        if (value) {
            store_value(*camera, *item);
        } else if (!run_action(*camera, key)) {
            log_line(LogLevel::Info, "business", "nothing to do for '" + key + "'"); // such as a text on a page
        }
        return 0;
    });
}

const char* parent_of_zone(const char* zone)
{
    Camera* camera = Camera::current();
    if (camera == nullptr || zone == nullptr) {
        return nullptr;
    }
    const char* const none = nullptr;
    return guarded("business", none, [&] {
        const auto found = camera->definitions().zones.find(zone);
        return found == camera->definitions().zones.end() ? none : found->second.c_str();
    });
}

void answer_event(void* user, tagOSD_MENU_GET_EVENT_E event, tagOSD_MENU_CONTROL_PARAM_S* answer)
{
    auto* camera = static_cast<Camera*>(user);
    answer->acText[0] = '\0';
    const std::string name = fact_of_event(event);
    if (camera == nullptr || name.empty()) {
        return;
    }
    (void)guarded("business", -1, [&] { // a failure leaves the answer empty
        const std::string text = answer_text(*camera, name);
        return std::snprintf(answer->acText, sizeof answer->acText, "%s", text.c_str());
    });
}

} // namespace sim
