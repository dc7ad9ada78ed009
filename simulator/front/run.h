// Chooses the front end and runs the camera on it.
#pragma once

#include "simulator/front/options.h"

namespace sim {

/// Runs one camera until its front end is done, or plays a scenario. Throws BadInput and std::runtime_error.
void run(const Options& options);

} // namespace sim
