// The camera as a web page and an HTTP interface.
#pragma once

#include "simulator/camera/camera.h"
#include "simulator/front/options.h"
#include "simulator/host/menu_host.h"
#include "simulator/host/pictures.h"

namespace sim {

/// Serves the camera until it is asked to end, by Ctrl-C or a signal of that kind. Prints one line with the address.
/// Throws BadInput when it can't listen where it should.
void serve_camera(Camera& camera, Pictures& pictures, const MenuConfig& menu, const Options& options);

} // namespace sim
