#include "simulator/front/run.h"

#include <iostream>

#include "pages/command/commands.h"
#include "pages/preview/sheet.h"
#include "simulator/base/data.h"
#include "simulator/base/resources.h"
#include "simulator/front/scenario.h"
#include "simulator/front/serve.h"
#include "simulator/front/window.h"
#include "simulator/host/checker.h"
#include "simulator/settings/settings_json.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

const char* const default_prompt = "Camera-01";

void write_snapshot(Camera& camera, int channel, const std::filesystem::path& path)
{
    save_png(camera.video.look_at(channel), path);
    std::cout << "wrote " << path.string() << std::endl;
}

void run_asked(MenuSession& session, const Options& options)
{
    MenuHost& host = session.menu();
    if (options.prompt) {
        host.overlays().show_prompt(*options.prompt);
    }
    KeyPlayer keys(options.keys.value_or(std::vector<TimedKey>()), host);
    if (options.window) {
        if (!show_window(session, keys, options.channel)) {
            throw BadInput(std::string("no window can be opened: ") + SDL_GetError());
        }
        return;
    }
    keys.press_all();
    if (options.snapshot) {
        write_snapshot(host.camera(), options.channel, *options.snapshot);
    }
}

/// What has to do with the settings alone needs no menu.
void transfer_settings(Camera& camera, const Options& options)
{
    if (options.import_file) {
        const std::size_t count = import_settings_file(camera.settings, *options.import_file);
        std::cout << "took over " << count << " settings from " << options.import_file->string() << std::endl;
    }
    if (options.export_file) {
        export_settings_file(camera.settings, *options.export_file);
        std::cout << "wrote " << options.export_file->string() << std::endl;
    }
}

int check_resources(const std::string& folder)
{
    const char* const words[] = {"osdmenu-pages", "check", folder.c_str()};
    return pages::run(3, words);
}

void write_contact_sheets(const std::filesystem::path& path, const Options& options)
{
    pages::Selection selection;
    selection.uhd = options.uhd;
    if (!options.page.empty()) {
        selection.pages = {options.page};
    }
    if (options.language) {
        selection.languages = {*options.language};
    }
    if (options.style) {
        selection.styles = {*options.style};
    }
    for (const auto& sheet : pages::write_sheets(pages::read_resource_folder(options.resources), path, selection)) {
        std::cout << "wrote " << sheet.string() << std::endl;
    }
}

void run_camera(const Options& options, Pictures& pictures)
{
    std::optional<ReloadingMarker> marker;
    if (options.reloading) {
        marker.emplace();
    }
    std::optional<KeyRecorder> recorder;
    if (options.record) {
        recorder.emplace(*options.record);
    }
    Camera camera({options.resources,
                   options.data,
                   options.reset,
                   {options.uhd, options.still, options.clouds},
                   options.language,
                   {}});
    camera.faults.set(options.faults);
    if (recorder) {
        recorder->follow(camera);
    }
    transfer_settings(camera, options);
    const MenuConfig menu{options.pixel_format, options.style.value_or(0), options.uhd, options.page,
                          options.prompt.value_or(default_prompt)};
    if (options.web) {
        serve_camera(camera, pictures, menu, options);
    } else if (!options.export_file) {
        MenuSession session(camera, menu);
        run_asked(session, options);
    }
}

} // namespace

int run(const Options& options)
{
    if (options.check) {
        return check_resources(*options.check);
    }
    if (options.scenario) {
        play_scenario(*options.scenario, options.update_scenario);
        return 0;
    }
    require_usable(options.resources);
    if (options.contact_sheet) {
        write_contact_sheets(*options.contact_sheet, options);
        return 0;
    }
    Pictures pictures(options.resources);
    if (!options.web) {
        pictures.take_outdated();
    }
    run_camera(options, pictures);
    return 0;
}

} // namespace sim
