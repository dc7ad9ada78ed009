// The camera's side of the menu: starts the library and answers its callbacks.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

#include "simulator/camera/camera.h"
#include "simulator/host/graphics_calls.h"
#include "simulator/host/overlays.h"

namespace sim {

/// What the pixels of the menu can be, in the library's order.
constexpr std::array<const char*, 3> format_names = {"argb1555", "argb4444", "argb8888"};

struct MenuConfig {
    std::uint32_t pixel_format = 2; ///< index in format_names
    std::uint32_t style = 0;        ///< skin, below style_count
    bool uhd = false;               ///< canvas for 3840 by 2160
    std::string page;               ///< page that opens instead of "main", empty for "main"
    std::string prompt;             ///< what the key "prompt" shows
};

/// Runs the menu of one camera. One at a time in a process, as the library keeps its state in globals and has no end;
/// calls come one at a time.
class MenuHost {
public:
    /// Starts the library on the current camera. Throws std::runtime_error when it refuses.
    MenuHost(Camera& camera, MenuConfig config);
    /// Reports media memory that was taken after the start and never given back.
    ~MenuHost();
    MenuHost(const MenuHost&) = delete;
    MenuHost& operator=(const MenuHost&) = delete;

    Camera& camera() { return camera_; }
    bool is_open() const;
    /// Calls one of the menu's key functions, and then does what had to wait for its end.
    void call(int (*key_function)());
    /// Opens the menu on its root page; does nothing when it is open. Throws BadInput when a page that the
    /// configuration names can't be read to its end; the menu is open then with what was read.
    void open();

    /// Opens the menu anew with one page above "main", or "main" alone. A page that can't be read is shown as far as it
    /// goes.
    void show_over_main(const std::string& name);

    Overlays& overlays() { return overlays_; }
    const MenuConfig& config() const { return config_; }

private:
    void open_page(const std::string& name);

    Camera& camera_;
    MenuConfig config_;
    Overlays overlays_{camera_};
    GraphicsFaults graphics_faults_{camera_.faults}; ///< from before the menu's start
    std::map<std::string, MemoryUse> memory_at_start_;
};

} // namespace sim
