#include "simulator/host/menu_host.h"

#include <stdexcept>
#include <utility>

#include "osd_page.h"
#include "simulator/base/data.h"
#include "simulator/base/log.h"
#include "simulator/host/callbacks.h"
#include "simulator/host/page_stack.h"

namespace sim {
namespace {

/// The left half of the picture over its full height: the right half stays free, so that the effect of a setting is
/// seen while it is changed. The place is the corner, because the menu draws inside its canvas at the canvas's own
/// place and would lose at the right and at the bottom what it is moved by.
constexpr tagOSD_MENU_RECT_S menu_place = {0.0F, 0.0F, 0.5F, 1.0F};

bool push_and_draw(const std::string& name)
{
    const bool complete = push_page(name);
    OSD_MENU_RenderCanvas();
    return complete;
}

} // namespace

MenuHost::MenuHost(Camera& camera, MenuConfig config) : camera_(camera), config_(std::move(config))
{
    tagOSD_MENU_CFG_S menu{menu_place, config_.pixel_format, config_.uhd ? 1 : 0, config_.style};
    if (OSD_MENU_InitOpensourceRes() != 0) {
        throw std::runtime_error("the menu's graphics libraries don't start, see the log above");
    }
    if (OSD_MENU_InitSdkRes(&menu, apply_item, parent_of_zone) != 0) {
        throw std::runtime_error("the menu doesn't start, see the log above");
    }
    Osd_GetVersionCallback(answer_event, &camera_);
    memory_at_start_ = camera_.memory.in_use();
}

MenuHost::~MenuHost()
{
    while (is_open()) {
        osdMenuReleaseSinglePage(); // the library forgets open pages when it starts anew
    }
    overlays_.hide_all();
    Osd_GetVersionCallback(nullptr, nullptr);
    for (const auto& [name, use] : camera_.memory.in_use()) {
        const std::size_t expected = memory_at_start_[name].blocks;
        if (use.blocks > expected) {
            log_line(LogLevel::Warning, "media",
                     std::to_string(use.blocks - expected) + " blocks '" + name + "' were never given back");
        }
    }
}

bool MenuHost::is_open() const { return OSD_MENU_GetMenuStatus() == 1; }

void MenuHost::call(int (*key_function)())
{
    if (key_function() != 0) {
        log_line(LogLevel::Warning, "menu", "the key has no effect");
    }
    if (camera_.video.restart_if_asked()) {
        OSD_MENU_CloseMenu();
    }
}

void MenuHost::open()
{
    if (is_open()) {
        return;
    }
    if (config_.page.empty()) {
        OSD_MENU_OpenMenu();
    } else {
        open_page(config_.page);
    }
}

void MenuHost::open_page(const std::string& name)
{
    if (!push_and_draw(name)) {
        throw BadInput("page '" + name + "' is shown as far as it can be read, see the lines above");
    }
}

void MenuHost::show_over_main(const std::string& name)
{
    OSD_MENU_CloseMenu();
    OSD_MENU_OpenMenu();
    if (name != "main") {
        (void)push_and_draw(name); // the log tells of a mistake
    }
}

} // namespace sim
