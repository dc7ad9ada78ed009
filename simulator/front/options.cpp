#include "simulator/front/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <map>
#include <sstream>

#include "simulator/core/data.h"
#include "simulator/core/page_files.h"
#include "simulator/core/resources.h"
#include "simulator/video/snapshot.h"

namespace sim {
namespace {

const std::map<std::string, bool> sizes = {{"1080p", false}, {"4k", true}};
const std::map<std::string, std::uint32_t> formats = {{"argb1555", 0}, {"argb4444", 1}, {"argb8888", 2}};

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

/// What the command line says before it is checked and turned into Options.
struct Words {
    std::string keys;
    std::string keys_file;
    std::string record;
    std::string check;
    std::string scenario;
    std::string update_scenario;
    std::string snapshot;
    std::string size = "1080p";
    std::string format = "argb8888";
    std::string language;
    std::string data;
    std::string prompt;
    std::string contact_sheet;
    std::string listen;
    std::string token;
    std::string resources;
    std::string faults;
    std::string import_file;
    std::string export_file;
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

std::string fault_names()
{
    std::string names;
    for (const FaultRow& row : all_faults()) {
        names += " " + std::string(row.name);
    }
    return names;
}

template <typename Value>
std::vector<std::string> names_of(const std::map<std::string, Value>& table)
{
    std::vector<std::string> names;
    for (const auto& [name, value] : table) {
        names.push_back(name);
    }
    return names;
}

void declare(CLI::App& app, Options& options, Words& words)
{
    app.add_option("--keys", words.keys, "Press these keys, separated by spaces, and end")->type_name("\"KEY ...\"");
    app.add_option("--keys-file", words.keys_file,
                   "Press the keys of a file, one a line, optionally behind a time in seconds: 1.250 down")
        ->type_name("FILE");
    app.add_option("--record", words.record, "Write each key that is pressed into a new file for --keys-file")
        ->type_name("FILE");
    app.add_option("--snapshot", words.snapshot, "Write what the channel shows at the end")->type_name("FILE.png");
    app.add_option("--channel", options.channel, "Channel that is shown: 0 main, 1 sub, 2 preview")
        ->check(CLI::Range(0, channel_count - 1))
        ->capture_default_str();
    app.add_option("--size", words.size, "Size of the main channel: 1080p or 4k")
        ->check(CLI::IsMember(names_of(sizes)))
        ->type_name("SIZE")
        ->capture_default_str();
    app.add_option("--format", words.format, "Pixels of the menu: argb1555, argb4444 or argb8888")
        ->check(CLI::IsMember(names_of(formats)))
        ->type_name("FORMAT")
        ->capture_default_str();
    app.add_option("--style", options.style, "Skin of the menu: 0, 1 or 2")->check(CLI::Range(0, 2));
    app.add_option("--language", words.language, "Language for this run only; the stored setting stays")
        ->type_name("NAME");
    app.add_option("--page", options.page, "Page that the menu key opens instead of main")->type_name("NAME");
    app.add_option("--data", words.data, "Folder of stored settings (default: camera-sim in your XDG data home)")
        ->type_name("DIR");
    app.add_flag("--reset", options.reset, "Set all settings back to their defaults first");
    app.add_flag("--still", options.still, "The scene stands at time 0, so that pictures repeat exactly");
    app.add_flag("--clouds", options.clouds, "Clouds cross all of the sky, also behind the menu");
    app.add_flag("--window", options.window, "Open a window");
    app.add_option("--listen", words.listen, "Serve the web page there (default: 127.0.0.1:8080 or another free port)")
        ->type_name("ADDRESS:PORT");
    app.add_option("--token", words.token, "What every web request must bring; needed to listen beyond this machine")
        ->type_name("TOKEN");
    app.add_flag("--open", options.open, "Open the web page in a browser");
    app.add_option(
           "--resources", words.resources,
           "Folder of pages, translations, settings definitions and pictures; changes show at once on the web page")
        ->type_name("DIR");
    app.add_option("--faults", words.faults, "Let parts of the camera fail, separated by commas:" + fault_names())
        ->type_name("NAME,...");
    app.add_option("--import", words.import_file, "Take settings over from a file that --export wrote")
        ->type_name("FILE");
    app.add_option("--export", words.export_file, "Write all settings into a JSON file and end")->type_name("FILE");
    app.add_option("--prompt", words.prompt, "Show this text over the picture from the start")->type_name("TEXT");
    app.add_flag("--reloading", options.reloading,
                 "The media service counts as reloading (/tmp/.mpp_reloading): no zoom ratio shows");
    app.add_option("--contact-sheet", words.contact_sheet,
                   "Write all pages side by side; a folder gets a sheet for each language and style, and for each page")
        ->type_name("FILE.png|DIR");
    app.add_option("--check", words.check, "Tell everything that is wrong with a folder of resources; stands alone")
        ->type_name("DIR");
    app.add_option("--scenario", words.scenario, "Play a scenario and compare; stands alone")->type_name("DIR");
    app.add_option("--update-scenario", words.update_scenario,
                   "Play a scenario and write its calls.txt and frame.png anew; stands alone")
        ->type_name("DIR");
}

/// What would be ignored beside another option.
struct Enemies {
    const char* option;
    std::vector<const char*> others;
};

const std::vector<Enemies> all_enemies = {
    {"--window", {"--snapshot"}},
    {"--keys", {"--keys-file"}},
    {"--contact-sheet",
     {"--window", "--snapshot", "--export", "--import", "--keys", "--keys-file", "--record", "--channel", "--data",
      "--faults", "--prompt", "--reloading"}},
    {"--export",
     {"--window", "--snapshot", "--keys", "--keys-file", "--record", "--channel", "--page", "--style", "--size",
      "--format", "--language", "--prompt", "--reloading"}},
};

void check_combinations(const CLI::App& app)
{
    for (const auto& [one, others] : all_enemies) {
        for (const char* other : others) {
            if (app.count(one) > 0 && app.count(other) > 0) {
                throw BadInput(std::string(one) + " and " + other + " can't be used together");
            }
        }
    }
    if (app.count("--channel") > 0 && app.count("--window") + app.count("--snapshot") == 0) {
        throw BadInput("--channel is for --window and --snapshot; the web page shows all channels");
    }
    for (const char* web : {"--listen", "--open", "--token"}) {
        for (const char* other : {"--window", "--snapshot", "--contact-sheet", "--export"}) {
            if (app.count(web) > 0 && app.count(other) > 0) {
                throw BadInput(std::string(web) + " is for the web page, which " + other + " does without");
            }
        }
    }
    for (const char* lonely : {"--check", "--scenario", "--update-scenario"}) {
        if (app.count(lonely) > 0 && app.parse_order().size() > 1) {
            throw BadInput(std::string(lonely) + " stands alone: what it needs is in its folder");
        }
    }
}

void take_scenario(const CLI::App& app, const Words& words, Options& options)
{
    options.update_scenario = app.count("--update-scenario") > 0;
    if (options.update_scenario || app.count("--scenario") > 0) {
        options.scenario = options.update_scenario ? words.update_scenario : words.scenario;
    }
}

void take_keys(const CLI::App& app, const Words& words, Options& options)
{
    if (app.count("--keys") > 0) {
        options.keys = parse_keys(words.keys);
    } else if (app.count("--keys-file") > 0) {
        options.keys = read_keys_file(words.keys_file);
    }
    if (app.count("--record") > 0) {
        options.record = words.record;
    }
}

void take_web(const CLI::App& app, const Words& words, Options& options)
{
    const auto asked = [&app](const char* name) { return app.count(name) > 0; };
    const bool other = asked("--keys") || asked("--keys-file") || asked("--snapshot") || asked("--window") ||
                       asked("--contact-sheet") || asked("--export");
    options.web = !other || asked("--listen") || asked("--open") || asked("--token");
    if (asked("--listen")) {
        options.listen = parse_listen_address(words.listen);
    }
    if (asked("--token")) {
        options.token = words.token;
        if (!is_usable_token(words.token)) {
            throw BadInput("--token: expected letters, digits and any of - . _ ~");
        }
    }
    if (options.listen && !options.token && !is_loopback(options.listen->host)) {
        throw BadInput("--listen " + words.listen + " lets other machines in: add --token TOKEN");
    }
}

std::vector<std::string> split_at_commas(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> parts;
    for (std::string part; std::getline(stream, part, ',');) {
        parts.push_back(part);
    }
    return parts;
}

void take_files(const CLI::App& app, const Words& words, Options& options)
{
    options.resources = app.count("--resources") > 0 ? std::filesystem::path(words.resources) : default_resources();
    if (app.count("--import") > 0) {
        options.import_file = words.import_file;
    }
    if (app.count("--export") > 0) {
        options.export_file = words.export_file;
    }
    options.faults = parse_faults(split_at_commas(words.faults));
}

void take_over(const CLI::App& app, const Words& words, Options& options)
{
    take_scenario(app, words, options);
    take_keys(app, words, options);
    take_web(app, words, options);
    take_files(app, words, options);
    if (app.count("--check") > 0) {
        options.check = words.check;
    }
    if (app.count("--prompt") > 0) {
        options.prompt = words.prompt;
    }
    if (app.count("--contact-sheet") > 0) {
        options.contact_sheet = words.contact_sheet;
    }
    if (app.count("--snapshot") > 0) {
        options.snapshot = words.snapshot;
        check_snapshot_path(*options.snapshot);
    }
    if (app.count("--language") > 0) {
        options.language = words.language;
    }
    options.uhd = sizes.at(words.size);
    options.pixel_format = formats.at(words.format);
    options.data = app.count("--data") > 0 ? std::filesystem::path(words.data) : default_data_folder();
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
    Words words;
    declare(app, options, words);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << app.help();
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw BadInput(first_line(error.what()) + "; --help explains all options");
    }
    check_combinations(app);
    take_over(app, words, options);
    return options;
}

} // namespace sim
