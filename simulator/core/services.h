// The platform functions that the menu calls, see platform/. They forward to one camera.
#pragma once

struct OSD_ATTACH_INFO_S {
    int channel;
};

namespace sim {

class Camera;

/// The platform functions answer from this camera from now on; null for none, then they all fail.
void set_current_camera(Camera* camera);

/// Calls the function that the menu registered with the media service for one channel. Returns false when there is
/// none.
bool refresh_channel(int channel, bool show);

} // namespace sim
