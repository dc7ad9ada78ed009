// Text prompts: each has a canvas of its own, just as large as its text.
#pragma once

#include "osd_prompt.h"

// The work of OSD_PROMPT_CreateEx, OSD_PROMPT_UpdateTextEx and OSD_PROMPT_DestroyEx; false where they give -1.
bool osdPromptCreate(OSD_PROMPT_HANDLER_S* pstHandler, const OSD_PROMPT_CFG_S& stCfg, const char* pcText);
bool osdPromptChange(OSD_PROMPT_HANDLER_S* pstHandler, const OSD_PROMPT_CFG_S& stCfg, const char* pcText);
void osdPromptDestroy(OSD_PROMPT_HANDLER_S* pstHandler);

// Shows the general prompt for three seconds.
void osdPromptFlash(const OSD_PROMPT_CFG_S& stCfg, const char* pcText);
