// The commands that have files of their own.
#pragma once

namespace CLI {
class App;
}

namespace pages {

void add_schema_command(CLI::App& app);
void add_text_commands(CLI::App& app, int& status);

} // namespace pages
