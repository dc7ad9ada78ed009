#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "pages/command/other_commands.h"
#include "pages/data/text_file.h"
#include "pages/schema/schema.h"

namespace pages {

void add_schema_command(CLI::App& app)
{
    struct Options {
        bool markdown = false;
        std::string document;
    };
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("schema", "Print the schema of page files, for editors");
    command->add_flag("--markdown", options->markdown, "print its attributes and words as tables of Markdown");
    command->add_option("--into", options->document, "put these tables between the marks in a document");
    command->callback([options] {
        if (!options->document.empty()) {
            const std::string old = read_text_file(options->document);
            write_text_file(options->document, with_schema_tables(old, options->document));
        } else {
            std::cout << (options->markdown ? schema_tables() : schema());
        }
    });
}

} // namespace pages
