// The zoom ratio in the middle of the picture.
#pragma once

// Shows or updates it; false when it can't be shown. Nothing happens while the media service starts anew.
bool osdZoomShow(float f32Ratio);

// Takes it away.
void osdZoomHide();
