// osdmenu-pages: checks, measures and shows a folder of menu pages.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "pages/command/commands.h"
#include "pages/data/errors.h"

int main(int argc, char** argv)
{
    CLI::App app("Checks, measures, shows and translates the pages of a camera's menu.", "osdmenu-pages");
    app.require_subcommand(1);
    int status = 0;
    pages::add_commands(app, status);
    try {
        app.parse(argc, argv);
        return status;
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    } catch (const pages::BadInput& mistake) {
        std::cerr << "osdmenu-pages: " << mistake.what() << '\n';
    } catch (const std::exception& error) {
        std::cerr << "osdmenu-pages: " << error.what() << '\n';
    }
    return 2;
}
