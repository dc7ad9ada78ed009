// The menu of a camera that people work with: it changes its skin and size, and keys are held.
#pragma once

#include <chrono>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>

#include "simulator/host/key_hold.h"
#include "simulator/host/menu_host.h"

namespace sim {

/// The menu could not start; the log says why. The camera has its picture without it.
class NoMenu : public std::runtime_error {
public:
    NoMenu() : std::runtime_error("the menu could not start, see the log; choosing a skin or a size starts it again") {}
};

/// All calls on the menu thread.
class MenuSession {
public:
    /// Starts the menu. One that can't start is a line in the log and nothing more.
    MenuSession(Camera& camera, const MenuConfig& config);

    Camera& camera() { return camera_; }
    const MenuConfig& config() const { return config_; }
    bool has_menu() const { return host_.has_value(); }
    /// Throws NoMenu.
    MenuHost& menu();

    /// Starts the menu anew, closed, with another skin or size.
    void restart(const MenuConfig& config);
    /// Opens the menu anew with one page, see MenuHost::show_over_main(). Throws NoMenu.
    void show_page(const std::string& name);

    /// Stores the value of a setting, for somebody who doesn't use the menu; what the menu shows of it follows. Throws
    /// as Settings::set() does.
    void change(const SettingId& id, const std::string& text);
    /// The same for many, as import_settings() does it. Returns how many there were.
    std::size_t import(const nlohmann::json& values);

    void press(const Key& key);
    /// Presses a key and again and again, until it is released, another key is pressed, or nobody has renewed the hold
    /// for a while, see KeyHold.
    void hold(const Key& key);
    void renew(const Key& key) { hold_.renew(key, KeyHold::Clock::now()); }
    void release(const Key& key) { hold_.end(key); }
    /// The key that is held; null for none.
    const Key* held() const { return hold_.key(); }

    /// Presses a held key and takes away overlays whose time is over. Says when there will be more to do.
    std::optional<KeyHold::Clock::time_point> tick();

private:
    void start();
    void press_now(const Key& key);

    Camera& camera_;
    MenuConfig config_;
    std::optional<MenuHost> host_;
    KeyHold hold_;
};

} // namespace sim
