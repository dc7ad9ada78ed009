// The popups of the layouts "horizontal_align" and "horizontal_align_keth".
#pragma once

#include "osd_records.h"

void osdPopupPage(tagPAGE_NODE_S* pstPage);
void osdPopupMsgPage(tagPAGE_NODE_S* pstPage);

// One text of either; the work of OSD_MENU_RenderHorizontalItem and its sister WithKETH.
bool osdPopupItem(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);
bool osdPopupMsgItem(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);
