// The program osdmenu-pages.
#pragma once

namespace pages {

/// The exit status of a command.
enum Status { all_well = 0, findings_told = 1, unusable = 2 };

/// Runs the command that the words behind the program's name say, and tells on standard error why it can't.
Status run(int argc, const char* const* argv) noexcept;

} // namespace pages
