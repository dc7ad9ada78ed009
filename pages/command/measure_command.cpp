#include "pages/command/measure_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "pages/check/check.h"
#include "pages/command/commands.h"
#include "pages/measure/report.h"

namespace pages {
namespace {

struct MeasureCommand {
    std::string folder;
    std::string fonts;
    std::set<std::string> pages;
    std::set<std::string> languages;
    bool json = false;
};

/// Nothing is measured without a word for a name that is misspelt.
template <typename Map>
void refuse_unknown(const std::set<std::string>& wanted, const Map& known, const std::string& what)
{
    for (const std::string& name : wanted) {
        if (known.count(name) == 0) {
            std::vector<std::string> names;
            std::transform(known.begin(), known.end(), std::back_inserter(names),
                           [](const auto& entry) { return entry.first; });
            const std::string nearest = nearest_word(name, names);
            throw BadInput("there is no " + what + " '" + name + "'" +
                           (nearest.empty() ? "" : ", expected '" + nearest + "'"));
        }
    }
}

int run_measure(const MeasureCommand& options)
{
    const ResourceFolder folder = read_resource_folder(options.folder, options.fonts);
    refuse_unknown(options.pages, folder.pages, "page");
    refuse_unknown(options.languages, folder.languages, "language");
    const auto is_one = [](const std::set<std::string>& wanted, const std::string& name) {
        return wanted.empty() || wanted.count(name) > 0;
    };
    Measures measures = measure(folder, [&](const PageFile& page, const std::string& language) {
        return is_one(options.pages, page.name) && is_one(options.languages, language);
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
    command->add_option("--page", options->pages, "only this page; may be given again");
    command->add_option("--language", options->languages, "only this language; may be given again");
    command->add_flag("--json", options->json, "as JSON");
    command->callback([options, &status] { status = run_measure(*options); });
}

} // namespace pages
