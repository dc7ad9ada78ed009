// How a page of each layout is drawn. The rows stand in menu/render/layouts.cpp.
#pragma once

#include "osd_records.h"

struct tagLAYOUT_S {
    tagPAGE_LAYOUT_E enLayout;
    int s32Frame;            // frame width in pixels, 0 for none
    const SDL_Rect* pstRect; // background, in surface coordinates
    void (*pfnDrawPage)(tagPAGE_NODE_S*);
    bool (*pfnDrawMsg)(tagITEM_NODE_S*, SDL_Rect*, OSD_BOOL); // null: no message line
};

// The row of a layout, or null where nothing draws it.
const tagLAYOUT_S* osdLayoutFind(tagPAGE_LAYOUT_E enLayout);
