// The prompts' C functions: each hands over to the C++ behind it.
#include "comm/surface.h"
#include "osd_prompt.h"
#include "prompt/prompt.h"
#include "prompt/zoom_ratio.h"

int OSD_PROMPT_CreateEx(OSD_PROMPT_HANDLER_S* pstHandler, OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    return osdPromptCreate(pstHandler, stCfg, pcText) ? 0 : -1;
}

int OSD_PROMPT_UpdateTextEx(OSD_PROMPT_HANDLER_S* pstHandler, OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    return osdPromptChange(pstHandler, stCfg, pcText) ? 0 : -1;
}

int OSD_PROMPT_DestroyEx(OSD_PROMPT_HANDLER_S* pstHandler)
{
    osdPromptDestroy(pstHandler);
    return 0;
}

int OSD_PROMPT_Create(OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    return OSD_PROMPT_CreateEx(&gsOsdPromptItem, stCfg, pcText);
}

int OSD_PROMPT_UpdateText(OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    return OSD_PROMPT_UpdateTextEx(&gsOsdPromptItem, stCfg, pcText);
}

int OSD_PROMPT_Destroy() { return OSD_PROMPT_DestroyEx(&gsOsdPromptItem); }

int OSD_PROMPT_Show(OSD_BOOL bShow) { return osdSurfacePush(&gsOsdPromptItem.stCanvas, bShow); }

int OSD_PROMPT_Update(OSD_PROMPT_CFG_S stCfg, char* pcText)
{
    if (stCfg.bSuppress == 0) {
        osdPromptFlash(stCfg, pcText);
    }
    return 0;
}

int OSD_PROMPT_ShowZoomRatio(float f32Ratio) { return osdZoomShow(f32Ratio) ? 0 : -1; }

int OSD_PROMPT_HideZoomRatio()
{
    osdZoomHide();
    return 0;
}

uint32_t OSD_PROMPT_IsZoomRatioActive() { return bZoomRatioActive; }
