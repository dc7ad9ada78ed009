// Chooses the front end and runs the camera on it.
#pragma once

#include "simulator/front/options.h"

namespace sim {

/// Runs one camera until its front end is done, plays a scenario or checks resources. Returns the exit status. Throws
/// BadInput and std::runtime_error.
int run(const Options& options);

} // namespace sim
