#include "simulator/front/run.h"

#include <cstdlib>
#include <iostream>

#include "simulator/core/errors.h"
#include "simulator/front/contact_sheet.h"
#include "simulator/front/scenario.h"
#include "simulator/front/window.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

const char* const default_snapshot = "camera.png";
const char* const default_prompt = "Camera-01";

bool environment_names_display()
{
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
}

void write_snapshot(Camera& camera, int channel, const std::filesystem::path& path)
{
    save_png(camera.look_at(channel), path);
    std::cout << "wrote " << path.string() << std::endl;
}

/// Nothing was asked for: a window where one can be, else a picture and a word on what else there is.
void run_plain(MenuHost& host, const Options& options)
{
    KeyPlayer no_keys({}, host);
    if (environment_names_display() && show_window(host, no_keys, options.channel)) {
        return;
    }
    host.open();
    save_png(host.camera().look_at(options.channel), default_snapshot);
    std::cout << "no display: wrote " << default_snapshot
              << " with the menu open; try --keys \"menu\" --snapshot FILE.png, or --help" << std::endl;
}

void run_asked(MenuHost& host, const Options& options)
{
    KeyPlayer keys(options.keys.value_or(std::vector<TimedKey>()), host);
    if (options.window) {
        if (!show_window(host, keys, options.channel)) {
            throw BadInput(std::string("no window can be opened: ") + SDL_GetError());
        }
        return;
    }
    keys.press_all();
    if (options.snapshot) {
        write_snapshot(host.camera(), options.channel, *options.snapshot);
    }
}

void run_camera(const Options& options)
{
    const bool plain = !options.keys && !options.snapshot && !options.window;
    if (plain) {
        check_snapshot_path(default_snapshot); // it may be needed
    }
    std::optional<ReloadingMarker> marker;
    if (options.reloading) {
        marker.emplace();
    }
    std::optional<KeyRecorder> recorder;
    if (options.record) {
        recorder.emplace(*options.record);
    }
    Camera camera({OSD_RESOURCE_DIR, options.data, options.reset, options.uhd, options.still, options.language, {}});
    if (recorder) {
        recorder->follow(camera);
    }
    MenuHost host(camera, {options.pixel_format, options.style, options.uhd, options.page,
                           options.prompt.value_or(default_prompt)});
    if (options.prompt) {
        host.overlays().show_prompt(*options.prompt);
    }
    plain ? run_plain(host, options) : run_asked(host, options);
}

} // namespace

void run(const Options& options)
{
    if (options.scenario) {
        play_scenario(*options.scenario, options.update_scenario);
    } else if (options.contact_sheet) {
        write_contact_sheets(*options.contact_sheet, options);
    } else {
        run_camera(options);
    }
}

} // namespace sim
