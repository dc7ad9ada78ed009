// The command "measure".
#pragma once

namespace CLI {
class App;
}

namespace pages {

void add_measure_command(CLI::App& app, int& status);

} // namespace pages
