#include "pages/command/measure_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "pages/check/check.h"
#include "pages/command/commands.h"
#include "pages/measure/report.h"
#include "pages/preview/selection.h"

namespace pages {
namespace {

struct MeasureCommand {
    std::string folder;
    std::string fonts;
    Selection selection;
    bool json = false;
};

int run_measure(const MeasureCommand& options)
{
    const ResourceFolder folder = read_resource_folder(options.folder, options.fonts);
    const Selection selection = checked(options.selection, folder);
    Measures measures = measure(folder, [&](const PageFile& page, const std::string& language) {
        return takes_page(selection, page.name) &&
               (selection.languages.empty() || selection.languages.count(language) > 0);
    });
    measures.findings = by_cause(std::move(measures.findings));
    if (options.json) {
        std::cout << to_json(measures) << '\n';
    } else {
        for (const Finding& finding : measures.findings) {
            std::cout << line_of(finding, options.folder) << '\n';
        }
        std::cout << table_of(measures.rooms);
    }
    return measures.findings.empty() ? all_well : findings_told;
}

} // namespace

void add_measure_command(CLI::App& app, int& status)
{
    auto options = std::make_shared<MeasureCommand>();
    CLI::App* command = app.add_subcommand("measure", "Tell what doesn't fit, and how many pixels each text has left");
    command->add_option("FOLDER", options->folder, "folder with pages/, lang/, pic/ and settings.json")->required();
    command->add_option("--fonts", options->fonts, "folder with font.ttf, bold_font.ttf and tcfont.ttf");
    command->add_option("--page", options->selection.pages, "only this page; may be given again");
    command->add_option("--language", options->selection.languages, "only this language; may be given again");
    command->add_flag("--json", options->json, "as JSON");
    command->callback([options, &status] { status = run_measure(*options); });
}

} // namespace pages
