// The platform functions that the menu calls, see platform/. They forward to one camera.
#pragma once

/// Names a channel by its number.
struct OSD_ATTACH_INFO_S {
    int channel;
};

namespace sim {

class Camera;

/// The platform functions answer from this camera from now on; null for none, then they all fail.
void set_current_camera(Camera* camera);

} // namespace sim
