#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "pages/command/commands.h"
#include "pages/command/other_commands.h"
#include "pages/texts/pseudo.h"
#include "pages/texts/translate.h"

namespace pages {
namespace {

struct TextOptions {
    std::string folder;
    std::string language;
    std::string file; ///< or folder that is written
    std::string fonts;
    bool update = false;
};

void tell_steps(const ResourceFolder& folder, const std::string& language)
{
    for (const std::string& step : left_to_do(folder, language)) {
        std::cout << "still to do: " << step << '\n';
    }
}

int run_export(const TextOptions& options)
{
    ResourceFolder folder = read_resource_folder(options.folder, options.fonts);
    const std::string language = language_named(folder.definitions, options.language);
    const Exported exported = export_texts(folder, language, options.file, options.update);
    std::cout << options.file << ": " << exported.texts << " texts, " << exported.translated << " translated\n";
    tell_steps(folder, language);
    return all_well;
}

int run_import(const TextOptions& options)
{
    ResourceFolder folder = read_resource_folder(options.folder, options.fonts);
    const std::string language = language_named(folder.definitions, options.language);
    const Imported imported = import_texts(folder, language, options.file);
    for (const BadInput& refusal : imported.refusals) {
        std::cout << refusal.what() << '\n';
    }
    if (!imported.refusals.empty()) {
        std::cout << imported.refusals.size() << " refused, nothing was written\n";
        return imported.usable ? findings_told : unusable;
    }
    std::cout << "lang/" << language << ".json: " << (imported.changed ? "written" : "unchanged") << '\n';
    tell_steps(folder, language);
    return all_well;
}

int run_pseudo(const TextOptions& options)
{
    write_pseudo(read_resource_folder(options.folder), options.file);
    return all_well;
}

void add_command(CLI::App& app, int& status, const char* name, const char* words, int (*run)(const TextOptions&))
{
    auto options = std::make_shared<TextOptions>();
    CLI::App* command = app.add_subcommand(name, words);
    command->add_option("FOLDER", options->folder, "folder with pages/, lang/, pic/ and settings.json")->required();
    command->add_option("LANGUAGE", options->language, "its name: lang/LANGUAGE.json; or its option key")->required();
    command->add_option("FILE", options->file, "PO file")->required();
    command->add_option("--fonts", options->fonts, "folder with font.ttf, bold_font.ttf and tcfont.ttf");
    if (run == run_export) {
        command->add_flag("--update", options->update, "keep the translations of the file, when it is there already");
    }
    command->callback([options, run, &status] { status = run(*options); });
}

} // namespace

void add_text_commands(CLI::App& app, int& status)
{
    CLI::App* texts = app.add_subcommand("texts", "Take a language to its translators and back");
    texts->require_subcommand(1);
    add_command(*texts, status, "export", "Write the texts of a language, old or new, as a PO file", run_export);
    add_command(*texts, status, "import", "Make the texts of a language from a PO file", run_import);

    auto options = std::make_shared<TextOptions>();
    CLI::App* pseudo = app.add_subcommand("pseudo", "Copy a folder, with a language of lengthened texts added");
    pseudo->add_option("FOLDER", options->folder, "folder with pages/, lang/, pic/ and settings.json")->required();
    pseudo->add_option("-o,--output", options->file, "new folder")->required();
    pseudo->callback([options, &status] { status = run_pseudo(*options); });
}

} // namespace pages
