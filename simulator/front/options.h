// The command line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "simulator/camera/faults.h"
#include "simulator/host/key_script.h"
#include "simulator/web/access.h"

namespace sim {

struct Options {
    std::optional<std::vector<TimedKey>> keys; ///< none when no option brings keys
    std::optional<std::filesystem::path> record;
    std::optional<std::filesystem::path> snapshot;
    int channel = 0;
    bool uhd = false;
    std::uint32_t pixel_format = 2;
    std::optional<std::uint32_t> style;
    std::optional<std::string> language;
    std::string page;
    std::filesystem::path data;
    bool reset = false;
    bool still = false;
    bool clouds = false;
    bool window = false;
    bool web = false;  ///< serves a web page; so it is when nothing else was asked for
    bool open = false; ///< opens a browser
    bool reloading = false;
    bool update_scenario = false;
    std::optional<ListenAddress> listen; ///< none for the usual address
    std::optional<std::string> token;
    std::filesystem::path resources; ///< as their authors have them
    std::set<Fault> faults;
    std::optional<std::filesystem::path> import_file;
    std::optional<std::filesystem::path> export_file;
    std::optional<std::string> prompt;
    std::optional<std::filesystem::path> contact_sheet;
    std::optional<std::string> check;              ///< a folder of resources; stands alone
    std::optional<std::filesystem::path> scenario; ///< stands alone
};

/// Reads the command line and checks all that can be checked before a start. Empty when the help text was asked for
/// and printed. Throws BadInput.
std::optional<Options> parse_options(int argc, const char* const* argv);

} // namespace sim
