// The walk over the items of a page, which the three lists share.
#pragma once

#include "menu/render/row.h"

struct tagLIST_S {
    OSD_ROW_FUNC pfnRow;
    void (*pfnTitle)(const tagPAGE_NODE_S*, SDL_Rect*); // null: the title is a row
    bool bDhcpEnds;                                     // nothing is drawn behind an applied DHCP mode
};

// Draws title and items; a row that fails leaves the page to the others.
void osdListDraw(tagPAGE_NODE_S* pstPage, const tagLIST_S& stList);

// Draws the pending message line of the top page.
void osdListMessage();
