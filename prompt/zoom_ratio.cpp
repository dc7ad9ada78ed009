// The zoom ratio in the middle of the picture.
#include <unistd.h>

#include <cstdio>

#include "osd_prompt.h"

// While this file exists the camera's media service starts anew and nothing may be drawn.
static constexpr char gs_acReloading[] = "/tmp/.mpp_reloading";

static constexpr OSD_PROMPT_CFG_S gs_stZoomCfg = {
    /* u32FontSize */ 164,
    /* bSuppress */ 0,
    /* stTxtColor */ {255, 255, 255, 255},
    /* stBgColor */ {128, 0, 0, 0},
    /* f64XRatio */ 0.5,
    /* f64YRatio */ 0.5,
};

OSD_PROMPT_HANDLER_S gsZoomRatioOsdItem;
uint32_t bZoomRatioActive;

int OSD_PROMPT_ShowZoomRatio(float f32Ratio)
{
    if (access(gs_acReloading, F_OK) == 0) {
        return 0;
    }
    char acRatio[64] = {};
    (void)snprintf(acRatio, sizeof(acRatio), "%.1fX", static_cast<double>(f32Ratio)); // 43 bytes at most
    if (bZoomRatioActive == 0) {
        char acWidest[] = "888.8X";
        const int s32Ret = OSD_PROMPT_CreateEx(&gsZoomRatioOsdItem, gs_stZoomCfg, acWidest);
        if (s32Ret != 0) {
            return s32Ret;
        }
        bZoomRatioActive = 1;
    }
    return OSD_PROMPT_UpdateTextEx(&gsZoomRatioOsdItem, gs_stZoomCfg, acRatio);
}

int OSD_PROMPT_HideZoomRatio()
{
    if (bZoomRatioActive == 0) {
        return 0;
    }
    bZoomRatioActive = 0;
    return OSD_PROMPT_DestroyEx(&gsZoomRatioOsdItem);
}

uint32_t OSD_PROMPT_IsZoomRatioActive() { return bZoomRatioActive; }
