#include "menu/core/page_fault.h"

#include <tinyxml2.h>

#include <cstring>

#include "comm/log.h"
#include "osd_menu.h"

void (*g_pfnPageFault)(const tagPAGE_FAULT_S& stFault) = nullptr;

static void osdPageFaultLog(const tagPAGE_FAULT_S& stFault)
{
    const int s32Line = stFault.pstElem->GetLineNum();
    switch (stFault.enFault) {
    case PAGE_FAULT_TOO_LONG:
        OSD_LOG(OSD_MENU_ParseXml, OSD_LOG_LEVEL_ERR, "line %d: %s holds %zu bytes, at most %d fit\n", s32Line,
                stFault.pcAttr, strlen(stFault.pcValue), OSD_TEXT_LEN - 1);
        break;
    case PAGE_FAULT_OPTIONS:
        OSD_LOG(OSD_MENU_ParseXml, OSD_LOG_LEVEL_ERR, "line %d: item %s has more than %d options\n", s32Line,
                stFault.pcValue, OSD_OPTION_MAX);
        break;
    case PAGE_FAULT_ABSENT:
    case PAGE_FAULT_WORD:
    case PAGE_FAULT_NUMBER:
    case PAGE_FAULT_NO_TEXT:
        break;
    }
}

void osdPageFault(const tagPAGE_FAULT_S& stFault)
{
    osdPageFaultLog(stFault);
    if (g_pfnPageFault != nullptr) {
        g_pfnPageFault(stFault);
    }
}
