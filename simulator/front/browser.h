// A browser beside the camera.
#pragma once

#include <string>

namespace sim {

/// Opens an address in whatever browser the person uses; it may outlive the camera. Returns why it can't; empty when it
/// was started.
std::string open_browser(const std::string& address);

} // namespace sim
