#include "simulator/front/run.h"

#include <cstdlib>
#include <iostream>

#include "simulator/core/errors.h"
#include "simulator/front/window.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

const char* const default_snapshot = "camera.png";

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
void run_plain(Camera& camera, MenuHost& host, const Options& options)
{
    if (environment_names_display() && show_window(camera, host, options.channel)) {
        return;
    }
    host.open();
    save_png(camera.look_at(options.channel), default_snapshot);
    std::cout << "no display: wrote " << default_snapshot
              << " with the menu open; try --keys \"menu\" --snapshot FILE.png, or --help" << std::endl;
}

} // namespace

void run(const Options& options)
{
    const bool plain = !options.keys && !options.snapshot && !options.window;
    if (plain) {
        check_snapshot_path(default_snapshot); // it may be needed
    }
    Camera camera({OSD_RESOURCE_DIR, options.data, options.reset, options.uhd, options.still, options.language});
    MenuHost host(camera, {options.pixel_format, options.style, options.uhd, options.page});
    if (plain) {
        run_plain(camera, host, options);
        return;
    }
    if (options.keys) {
        for (const Key* key : *options.keys) {
            key->function(host);
        }
    }
    if (options.snapshot) {
        write_snapshot(camera, options.channel, *options.snapshot);
    }
    if (options.window && !show_window(camera, host, options.channel)) {
        throw BadInput(std::string("no window can be opened: ") + SDL_GetError());
    }
}

} // namespace sim
