// osdmenu-pages: checks, measures and shows a folder of menu pages.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

#include "pages/command/commands.h"

namespace {

int run(int argc, const char* const* argv)
{
    CLI::App app("Checks, measures, shows and translates the pages of a camera's menu.", "osdmenu-pages");
    app.set_version_flag("--version", std::string("osdmenu-pages ") + pages::version());
    app.require_subcommand(1);
    int status = 0;
    pages::add_commands(app, status);
    pages::refuse_unknown_command(app, {argv + 1, argv + argc});
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : pages::unusable;
    }
    if (!std::cout.flush()) {
        throw std::runtime_error("can't write all that is to be told: the disk is full, or nobody reads it");
    }
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "osdmenu-pages: %s\n", error.what());
    }
    return pages::unusable;
}
