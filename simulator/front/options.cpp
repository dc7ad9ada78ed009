#include "simulator/front/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <iostream>

#include "simulator/base/data.h"
#include "simulator/base/page_files.h"
#include "simulator/base/resources.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

using Names = std::vector<const char*>;

const char* const description = "A simulated network camera with its on-screen menu.\n"
                                "Without options it serves a web page and prints its address; Ctrl-C ends it.";

const char* const examples =
    "\nExamples:\n"
    "  camera-sim\n"
    "      a web page with the picture and a remote control, at http://127.0.0.1:8080/ when that is free\n"
    "  camera-sim --listen 0.0.0.0:8080 --token SECRET\n"
    "      the same for other machines; who has no token gets nothing\n"
    "  camera-sim --window\n"
    "      a window; M opens the menu, Q or closing the window ends the camera\n"
    "  camera-sim --keys menu --snapshot menu.png\n"
    "      presses keys without a window and writes what the main channel shows\n"
    "  camera-sim --keys menu --snapshot small.png --channel 2 --format argb4444 --still\n"
    "      the preview channel, other pixels, a scene that stands still\n"
    "  camera-sim --page image --language German --keys menu --snapshot page.png\n"
    "      for authors of pages: the menu key opens this page, in this language\n"
    "  camera-sim --window --record keys.txt\n"
    "      writes each key with its time into a file; --keys-file keys.txt presses them again\n"
    "  camera-sim --scenario tests/scenarios/NAME\n"
    "      plays keys.txt of this folder and compares with its calls.txt and frame.png\n"
    "\nExit status: 0 success; 1 the camera failed, a scenario differs or --check has found something; 2 the input "
    "can't be used.\n";

const Names web_options = {"--listen", "--open", "--token"};
const Names no_web_options = {"--window", "--snapshot", "--contact-sheet", "--export"};
const Names key_options = {"--keys", "--keys-file"}; // they end the camera, but for the options of the web page
const Names standalone_options = {"--check", "--scenario", "--update-scenario"};

/// Options that would be ignored beside another.
const std::pair<const char*, Names> exclusions[] = {
    {"--window", {"--snapshot"}},
    {"--keys", {"--keys-file"}},
    {"--contact-sheet",
     {"--window", "--snapshot", "--export", "--import", "--keys", "--keys-file", "--record", "--channel", "--data",
      "--faults", "--prompt", "--reloading"}},
    {"--export",
     {"--window", "--snapshot", "--keys", "--keys-file", "--record", "--channel", "--page", "--style", "--size",
      "--format", "--language", "--prompt", "--reloading"}},
    {"--listen", no_web_options},
    {"--open", no_web_options},
    {"--token", no_web_options},
};

std::string key_help()
{
    std::string text = "Keys:\n";
    for (const Key& key : all_keys()) {
        const std::string keyboard = key.keyboard == SDLK_UNKNOWN ? "" : SDL_GetKeyName(key.keyboard);
        std::string name = key.name;
        name.resize(std::max<std::size_t>(name.size(), 12), ' ');
        text += "  " + name + key.help + (keyboard.empty() ? "" : " (" + keyboard + ")") + "\n";
    }
    return text + "Escape is the menu key while the menu is open.\n";
}

std::uint32_t pixel_format_of(const std::string& name)
{
    return static_cast<std::uint32_t>(std::find(format_names.begin(), format_names.end(), name) - format_names.begin());
}

/// word: what the help calls its value
template <typename Target>
CLI::Option* add(CLI::App& app, const char* name, const char* word, Target& target, const std::string& help)
{
    return app.add_option(name, target, help)->type_name(word);
}

/// The same for a value that a function takes.
CLI::Option* add_read(CLI::App& app, const char* name, const char* word,
                      const std::function<void(const std::string&)>& take, const char* help)
{
    return app.add_option_function(name, take, help)->type_name(word);
}

void declare_keys(CLI::App& app, Options& options)
{
    add_read(
        app, "--keys", "\"KEY ...\"", [&](const std::string& text) { options.keys = parse_keys(text); },
        "Press these keys, separated by spaces, and end");
    add_read(
        app, "--keys-file", "FILE", [&](const std::string& path) { options.keys = read_keys_file(path); },
        "Press the keys of a file, one a line, optionally behind a time in seconds: 1.250 down");
    add(app, "--record", "FILE", options.record, "Write each key that is pressed into a new file for --keys-file");
}

void declare_picture(CLI::App& app, Options& options)
{
    add(app, "--snapshot", "FILE.png", options.snapshot, "Write what the channel shows at the end");
    app.add_option("--channel", options.channel, "Channel that is shown: 0 main, 1 sub, 2 preview")
        ->check(CLI::Range(0, channel_count - 1))
        ->capture_default_str();
    add_read(
        app, "--size", "SIZE", [&](const std::string& name) { options.uhd = name == size_name(true); },
        "Size of the main channel")
        ->check(CLI::IsMember(size_names))
        ->default_str(size_name(options.uhd));
    add_read(
        app, "--format", "FORMAT", [&](const std::string& name) { options.pixel_format = pixel_format_of(name); },
        "Pixels of the menu")
        ->check(CLI::IsMember(format_names))
        ->default_str(format_names[options.pixel_format]);
    app.add_option("--style", options.style, "Skin of the menu: " + std::string(style_words))
        ->check(CLI::Range(0U, style_count - 1));
    add(app, "--language", "NAME", options.language, "Language for this run only; the stored setting stays");
    add(app, "--page", "NAME", options.page, "Page that the menu key opens instead of main");
}

void declare_camera(CLI::App& app, Options& options)
{
    add(app, "--data", "DIR", options.data, "Folder of stored settings (default: camera-sim in your XDG data home)");
    app.add_flag("--reset", options.reset, "Set all settings back to their defaults first");
    app.add_flag("--still", options.still, "The scene stands at time 0, so that pictures repeat exactly");
    app.add_flag("--clouds", options.clouds, "Clouds cross all of the sky, also behind the menu");
    app.add_flag("--window", options.window, "Open a window");
    add_read(
        app, "--listen", "ADDRESS:PORT", [&](const std::string& text) { options.listen = parse_listen_address(text); },
        "Serve the web page there (default: 127.0.0.1:8080 or another free port)");
    add(app, "--token", "TOKEN", options.token,
        "What every web request must bring; needed to listen beyond this machine")
        ->check([](const std::string& text) {
            return is_usable_token(text) ? "" : "expected letters, digits and any of - . _ ~";
        });
    app.add_flag("--open", options.open, "Open the web page in a browser");
    add(app, "--resources", "DIR", options.resources,
        "Folder of pages, translations, settings definitions and pictures; changes show at once on the web page");
}

void declare_others(CLI::App& app, Options& options)
{
    app.add_option_function<std::vector<std::string>>(
           "--faults", [&options](const std::vector<std::string>& names) { options.faults = parse_faults(names); },
           "Let parts of the camera fail, separated by commas: " + joined(fault_names()))
        ->delimiter(',')
        ->allow_extra_args(false)
        ->type_name("NAME,NAME");
    add(app, "--import", "FILE", options.import_file, "Take settings over from a file that --export wrote");
    add(app, "--export", "FILE", options.export_file, "Write all settings into a JSON file and end");
    add(app, "--prompt", "TEXT", options.prompt, "Show this text over the picture from the start");
    app.add_flag("--reloading", options.reloading,
                 "The media service counts as reloading (/tmp/.mpp_reloading): no zoom ratio shows");
    add(app, "--contact-sheet", "FILE.png|DIR", options.contact_sheet,
        "Write all pages side by side; a folder gets a sheet for each language and style, and for each page");
    add(app, "--check", "DIR", options.check, "Tell everything that is wrong with a folder of resources; stands alone");
    add(app, "--scenario", "DIR", options.scenario, "Play a scenario and compare; stands alone");
    add(app, "--update-scenario", "DIR", options.scenario,
        "Play a scenario and write its calls.txt and frame.png anew; stands alone");
}

void declare_exclusions(CLI::App& app)
{
    for (const auto& [name, others] : exclusions) {
        for (const char* other : others) {
            app.get_option(name)->excludes(app.get_option(other));
        }
    }
    for (const char* name : standalone_options) {
        CLI::Option* option = app.get_option(name);
        for (CLI::Option* other : app.get_options([option](const CLI::Option* one) { return one != option; })) {
            option->excludes(other);
        }
    }
}

bool any_given(const CLI::App& app, const Names& names)
{
    return std::any_of(names.begin(), names.end(), [&app](const char* name) { return app.count(name) > 0; });
}

/// What one option alone doesn't tell.
void complete(const CLI::App& app, Options& options)
{
    if (app.count("--channel") > 0 && !any_given(app, {"--window", "--snapshot"})) {
        throw BadInput("--channel is for --window and --snapshot; the web page shows all channels");
    }
    options.web = any_given(app, web_options) || !(any_given(app, no_web_options) || any_given(app, key_options));
    if (options.listen && !options.token && !is_loopback(options.listen->host)) {
        throw BadInput("--listen at " + options.listen->host + " lets other machines in: add --token TOKEN");
    }
    options.update_scenario = app.count("--update-scenario") > 0;
    if (options.snapshot) {
        check_snapshot_path(*options.snapshot);
    }
    if (app.count("--data") == 0) {
        options.data = default_data_folder();
    }
    if (app.count("--resources") == 0) {
        options.resources = default_resources();
    }
    if (app.count("--page") > 0) {
        require_page(options.page, options.resources);
    }
}

std::string first_line(const std::string& text) { return text.substr(0, text.find('\n')); }

} // namespace

std::optional<Options> parse_options(int argc, const char* const* argv)
{
    CLI::App app(description, "camera-sim");
    app.footer(key_help() + examples);
    Options options;
    declare_keys(app, options);
    declare_picture(app, options);
    declare_camera(app, options);
    declare_others(app, options);
    const std::string help = app.help(); // would name all exclusions at each option
    declare_exclusions(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << help;
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw BadInput(first_line(error.what()) + "; --help explains all options");
    }
    complete(app, options);
    return options;
}

} // namespace sim
