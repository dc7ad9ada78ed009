// The commands that show pages: preview and map.
#pragma once

namespace CLI {
class App;
}

namespace pages {

void add_show_commands(CLI::App& app, int& status);

} // namespace pages
