#include "prompt/zoom_ratio.h"

#include <unistd.h>

#include <cstdio>

#include "prompt/prompt.h"

// While this file exists the camera's media service starts anew and nothing may be drawn.
static constexpr char c_acReloading[] = "/tmp/.mpp_reloading";

static constexpr OSD_PROMPT_CFG_S c_stZoomCfg = {
    /* u32FontSize */ 164,
    /* bSuppress */ 0,
    /* stTxtColor */ {255, 255, 255, 255},
    /* stBgColor */ {128, 0, 0, 0},
    /* f64XRatio */ 0.5,
    /* f64YRatio */ 0.5,
};

OSD_PROMPT_HANDLER_S gsZoomRatioOsdItem;
uint32_t bZoomRatioActive;

bool osdZoomShow(float f32Ratio)
{
    if (access(c_acReloading, F_OK) == 0) {
        return true;
    }
    if (bZoomRatioActive == 0) {
        if (!osdPromptCreate(&gsZoomRatioOsdItem, c_stZoomCfg, "888.8X")) { // room for the widest
            return false;
        }
        bZoomRatioActive = 1;
    }
    char acRatio[64] = {};
    (void)snprintf(acRatio, sizeof(acRatio), "%.1fX", static_cast<double>(f32Ratio)); // 43 bytes at most
    return osdPromptChange(&gsZoomRatioOsdItem, c_stZoomCfg, acRatio);
}

void osdZoomHide()
{
    if (bZoomRatioActive != 0) {
        bZoomRatioActive = 0;
        osdPromptDestroy(&gsZoomRatioOsdItem);
    }
}
