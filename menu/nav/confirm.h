// Confirm pages: a page with the items "Yes" and "No" above the page that it asks about.
//
// The handlers carry out an answer. pstItemNode is the selected item of the confirm page, pstPage the confirm page, the
// top page. They return 0, after "Yes" and "No" with the confirm page gone; 1 when the page below is not theirs and -1
// when there is no language, both with nothing done.
#pragma once

#include "osd_records.h"

extern "C" {
// For the parent items "FactoryRestore", "Restart" and "LensCorrection", on whatever page.
OSD_API int OSD_MENU_FactoryRestoreHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);

// For the parent page that the name says: "Yes" applies its items up to and with "Confirm".
OSD_API int OSD_MENU_NetworkHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_FormatHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_RotateHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_PipHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_VideoHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);

// For every other parent page: "Yes" applies the parent item and reads the page's values again.
OSD_API int OSD_MENU_IspHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);

// Applies the sub-items below one item of the page "network". Returns 0.
OSD_API int OSD_MENU_NetworkItemExec(tagITEM_NODE_S* pstItemNode);
}
