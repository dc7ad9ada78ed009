#include "pages/command/commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <iostream>

#include "pages/check/check.h"
#include "pages/command/measure_command.h"
#include "pages/command/other_commands.h"
#include "pages/command/show_commands.h"
#include "pages/grammar/page_walk.h"

namespace pages {
namespace {

struct Options {
    std::string folder;
    std::string fonts;
    bool json = false;
    bool quick = false;
    bool rules = false;
};

int list_rules()
{
    for (const Rule& rule : all_rules()) {
        std::cout << rule.name << " (" << name_of(rule.severity) << "): " << rule.meaning << '\n';
    }
    return all_well;
}

int run_check(const Options& options)
{
    if (options.rules) {
        return list_rules();
    }
    if (options.folder.empty()) {
        throw BadInput("check: expected a folder, or --rules");
    }
    const ResourceFolder folder = read_resource_folder(options.folder, options.fonts);
    const std::vector<Finding> findings = check(folder, {!options.quick, {}}).findings;
    if (options.json) {
        std::cout << to_json(findings) << '\n';
    } else {
        for (const Finding& finding : findings) {
            std::cout << line_of(finding, options.folder) << '\n';
        }
    }
    return findings.empty() ? all_well : findings_told;
}

/// The one that runs sets the status; it throws BadInput for what can't be used.
void add_commands(CLI::App& app, int& status)
{
    auto options = std::make_shared<Options>();
    CLI::App* check = app.add_subcommand("check", "Tell everything that is wrong with a folder of resources");
    check->add_option("FOLDER", options->folder, "folder with pages/, lang/, pic/ and settings.json");
    check->add_option("--fonts", options->fonts, "folder with font.ttf, bold_font.ttf and tcfont.ttf");
    check->add_flag("--json", options->json, "as JSON");
    check->add_flag("--quick", options->quick, "don't draw and measure");
    check->add_flag("--rules", options->rules, "list the rules and end");
    check->callback([options, &status] { status = run_check(*options); });
    add_measure_command(app, status);
    add_schema_command(app);
    add_text_commands(app, status);
    add_show_commands(app, status);
}

/// Throws BadInput for a word that stands where a command is expected, and is none.
void refuse_unknown_command(const CLI::App& app, const std::vector<std::string>& words)
{
    const CLI::App* level = &app;
    for (const std::string& word : words) {
        std::vector<std::string> known;
        for (const CLI::App* command : level->get_subcommands({})) {
            known.push_back(command->get_name());
        }
        if (known.empty() || word.empty() || word[0] == '-') {
            return;
        }
        if (std::count(known.begin(), known.end(), word) == 0) {
            throw BadInput("there is no command '" + word + "', expected " + one_of(word, known));
        }
        level = level->get_subcommand(word);
    }
}

int run_command(int argc, const char* const* argv)
{
    CLI::App app("Checks, measures, shows and translates the pages of a camera's menu.", "osdmenu-pages");
    app.set_version_flag("--version", "osdmenu-pages " OSD_VERSION);
    app.require_subcommand(1);
    int status = all_well;
    add_commands(app, status);
    refuse_unknown_command(app, {argv + 1, argv + argc});
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? all_well : unusable;
    }
    if (!std::cout.flush()) {
        throw BadInput("can't write all that is to be told: the disk is full, or nobody reads it");
    }
    return status;
}

} // namespace

Status run(int argc, const char* const* argv) noexcept
{
    try {
        return static_cast<Status>(run_command(argc, argv));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "osdmenu-pages: %s\n", error.what());
    }
    return unusable;
}

} // namespace pages
