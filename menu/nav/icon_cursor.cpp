// The grid of an icon page. Left and right run through all cells in order, up and down stay in their column:
//
//     0  1  2  3      down from 5 gives 9, from 6 gives 2, as nothing stands below it
//     4  5  6  7      up from 1 gives 9, from 3 gives 7
//     8  9
#include "menu/nav/cursor.h"

static int32_t osdIconDown(int32_t s32Cnt, int32_t s32PerLine, int32_t s32Idx)
{
    return s32Idx < s32Cnt - s32PerLine ? s32Idx + s32PerLine : s32Idx % s32PerLine;
}

static int32_t osdIconUp(int32_t s32Cnt, int32_t s32PerLine, int32_t s32Idx)
{
    if (s32Idx >= s32PerLine) {
        return s32Idx - s32PerLine;
    }
    // the lowest row, or the one above it where the last row is too short
    const int32_t s32LastRow = (s32Cnt - 1) / s32PerLine;
    const int32_t s32LastInRow = (s32Cnt - 1) % s32PerLine;
    return s32Idx + s32PerLine * (s32Idx <= s32LastInRow ? s32LastRow : s32LastRow - 1);
}

void osdIconMove(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey)
{
    const int32_t s32Cnt = pstPage->s32ItemCnt;
    const int32_t s32PerLine = pstPage->s32CountPerLine;
    int32_t& s32Idx = pstPage->s32SelIdx;
    if (s32Idx < 0 || s32Idx >= s32Cnt) {
        return; // no cell to move from
    }
    switch (enKey) {
    case OSD_MENU_KEY_LEFT:
        s32Idx = s32Idx > 0 ? s32Idx - 1 : s32Cnt - 1;
        break;
    case OSD_MENU_KEY_RIGHT:
        s32Idx = s32Idx < s32Cnt - 1 ? s32Idx + 1 : 0;
        break;
    case OSD_MENU_KEY_UP:
        s32Idx = s32PerLine > 0 && s32PerLine < s32Cnt ? osdIconUp(s32Cnt, s32PerLine, s32Idx) : s32Idx;
        break;
    case OSD_MENU_KEY_DOWN:
        s32Idx = s32PerLine > 0 && s32PerLine < s32Cnt ? osdIconDown(s32Cnt, s32PerLine, s32Idx) : s32Idx;
        break;
    }
}
