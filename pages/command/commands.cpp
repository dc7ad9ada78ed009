#include "pages/command/commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
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

} // namespace

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

const char* version() { return OSD_VERSION; }

} // namespace pages
