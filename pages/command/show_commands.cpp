#include "pages/command/show_commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <unistd.h>

#include "pages/command/commands.h"
#include "pages/map/map.h"
#include "pages/preview/preview.h"
#include "pages/preview/sheet.h"

namespace pages {
namespace {

struct ShowOptions {
    std::string folder;
    std::string fonts;
    std::string to;
    std::string earlier;
    std::string size;
    bool sheets = false;
    Selection selection;
};

ResourceFolder read_folder(const ShowOptions& options)
{
    ResourceFolder folder = read_resource_folder(options.folder, options.fonts);
    for (const BadInput& mistake : folder.mistakes) {
        std::cerr << "osdmenu-pages: left out: " << mistake.what() << '\n';
    }
    return folder;
}

Selection selection_of(const ShowOptions& options)
{
    Selection selection = options.selection;
    if (!options.size.empty()) {
        selection.uhd = options.size == size_name(true);
    }
    return selection;
}

void tell_sheets(const ShowOptions& options)
{
    for (const auto& file : write_sheets(read_folder(options), options.to, selection_of(options))) {
        std::cout << "wrote " << file.string() << '\n';
    }
}

/// A line that counts up, for who waits at a terminal.
void tell_progress(std::size_t drawn, std::size_t all)
{
    if (isatty(STDERR_FILENO) != 0) {
        std::cerr << "\rdrawing picture " << drawn << " of " << all << (drawn == all ? "\n" : "") << std::flush;
    }
}

void tell_preview(const ShowOptions& options)
{
    const Preview preview =
        write_preview(read_folder(options), options.to, selection_of(options), options.earlier, tell_progress);
    std::cout << "wrote " << preview.pictures << " pictures and " << options.to << "/index.html\n";
    if (options.earlier.empty()) {
        return;
    }
    const auto count = [&](Change change) {
        return std::count_if(preview.changes.begin(), preview.changes.end(),
                             [&](const auto& entry) { return entry.second == change; });
    };
    std::cout << count(Change::Changed) << " changed, " << count(Change::Added) << " new, " << count(Change::Gone)
              << " gone against " << options.earlier << '\n';
}

int run_preview(const ShowOptions& options)
{
    const bool sheets = options.sheets || std::filesystem::path(options.to).extension() == ".png";
    if (sheets && !options.earlier.empty()) {
        throw BadInput("--against compares single pictures, expected neither --sheets nor a file to write to");
    }
    sheets ? tell_sheets(options) : tell_preview(options);
    return all_well;
}

int run_map(const ShowOptions& options)
{
    const MapCounts counts = write_map(read_folder(options), options.to, selection_of(options));
    std::cout << "wrote " << options.to << ": " << counts.reached << " pages reached, " << counts.unreached << " not, "
              << counts.too_deep << " ways deeper than five, " << counts.dead_ends << " ways that end\n";
    return all_well;
}

void add_common(CLI::App& command, ShowOptions& options)
{
    command.add_option("FOLDER", options.folder, "folder with pages/, lang/, pic/ and settings.json")->required();
    command.add_option("--fonts", options.fonts, "folder with font.ttf, bold_font.ttf and tcfont.ttf");
    command.add_option("--language", options.selection.languages, "this language only; more than one can be given");
    command.add_option("--style", options.selection.styles, "this style only, 0 to 2; more than one can be given");
    command.add_option("--size", options.size, "this size only")->check(CLI::IsMember(size_names));
}

} // namespace

void add_show_commands(CLI::App& app, int& status)
{
    auto options = std::make_shared<ShowOptions>();
    CLI::App* preview =
        app.add_subcommand("preview", "Draw all pages into pictures, with an HTML page to leaf through");
    add_common(*preview, *options);
    preview->add_option("-o,--output", options->to, "folder to write to, or a .png file for one sheet")->required();
    preview->add_option("--page", options->selection.pages, "this page only; more than one can be given");
    preview->add_option("--against", options->earlier, "folder of an earlier run: show what has changed");
    preview->add_flag("--sheets", options->sheets, "many pages on a picture, instead of one");
    preview->callback([options, &status] { status = run_preview(*options); });

    auto map_options = std::make_shared<ShowOptions>();
    CLI::App* map = app.add_subcommand("map", "Find all pages by keys, and draw the ways to them");
    add_common(*map, *map_options);
    map->add_option("-o,--output", map_options->to, "HTML file to write")->required();
    map->callback([map_options, &status] { status = run_map(*map_options); });
}

} // namespace pages
