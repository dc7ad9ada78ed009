// The commands of the program, each a row of a table: its options, and what it does.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace pages {

/// The exit status of a command.
enum Status { all_well = 0, findings_told = 1, unusable = 2 };

/// Adds all commands; the one that runs sets the status. A command throws BadInput for what can't be used.
void add_commands(CLI::App& app, int& status);

/// Throws BadInput for a word that stands where a command is expected, and is none.
void refuse_unknown_command(const CLI::App& app, const std::vector<std::string>& words);

const char* version();

} // namespace pages
