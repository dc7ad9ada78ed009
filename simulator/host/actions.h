// What the buttons of the menu do in the camera.
#pragma once

#include <string>

namespace sim {

class Camera;

/// Does what the button of this key stands for, and logs one line. False when no button has this key.
bool run_action(Camera& camera, const std::string& key);

} // namespace sim
