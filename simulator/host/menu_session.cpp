#include "simulator/host/menu_session.h"

#include <algorithm>

#include "osd_menu.h"
#include "simulator/base/data.h"
#include "simulator/base/log.h"
#include "simulator/host/page_stack.h"
#include "simulator/settings/settings_json.h"

namespace sim {

MenuSession::MenuSession(Camera& camera, const MenuConfig& config) : camera_(camera), config_(config) { start(); }

MenuHost& MenuSession::menu()
{
    if (!host_) {
        throw NoMenu();
    }
    return *host_;
}

void MenuSession::start()
{
    hold_.end();
    host_.reset(); // the library has one menu
    try {
        camera_.video.resize(config_.uhd);
        host_.emplace(camera_, config_);
    } catch (const std::exception& error) {
        log_line(LogLevel::Error, "menu", error.what());
    }
}

void MenuSession::restart(const MenuConfig& config)
{
    config_ = config;
    start();
}

void MenuSession::show_page(const std::string& name)
{
    hold_.end();
    menu().show_over_main(name);
}

void MenuSession::change(const SettingId& id, const std::string& text)
{
    const std::string language = camera_.language();
    camera_.settings.set(id, text);
    if (!host_) {
        return;
    }
    if (camera_.language() != language) {
        reopen_pages();
    } else {
        std::string key = id.key;
        OSD_MENU_RefreshItem(key.data());
    }
}

std::size_t MenuSession::import(const nlohmann::json& values)
{
    const std::size_t count = import_settings(camera_.settings, values);
    if (host_) {
        reopen_pages();
    }
    return count;
}

/// A page file with a mistake must not end the camera.
void MenuSession::press_now(const Key& key)
{
    try {
        sim::press(key, menu());
    } catch (const BadInput& error) {
        log_line(LogLevel::Error, "menu", error.what());
    }
}

void MenuSession::press(const Key& key)
{
    hold_.end();
    press_now(key);
}

void MenuSession::hold(const Key& key)
{
    press(key);
    hold_.begin(key, KeyHold::Clock::now());
}

std::optional<KeyHold::Clock::time_point> MenuSession::tick()
{
    if (!host_) {
        return std::nullopt;
    }
    const auto now = KeyHold::Clock::now();
    if (const Key* key = hold_.due(now)) {
        try {
            press_now(*key);
        } catch (...) { // what fails once would fail ten times a second
            hold_.end();
            throw;
        }
    }
    host_->overlays().hide_what_is_over();
    const auto repeat = hold_.next();
    const auto left = host_->overlays().seconds_left();
    if (!left) {
        return repeat;
    }
    const auto end = now + std::chrono::duration_cast<KeyHold::Clock::duration>(std::chrono::duration<double>(*left));
    return repeat ? std::min(*repeat, end) : end;
}

} // namespace sim
