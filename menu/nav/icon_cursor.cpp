#include "menu/nav/icon_cursor.h"

#include "comm/arith.h"

static int64_t osdIconDown(int64_t s64Cnt, int64_t s64PerLine, int64_t s64Idx)
{
    return s64Idx + s64PerLine < s64Cnt ? s64Idx + s64PerLine : s64Idx % s64PerLine;
}

static int64_t osdIconUp(int64_t s64Cnt, int64_t s64PerLine, int64_t s64Idx)
{
    if (s64Idx >= s64PerLine) {
        return s64Idx - s64PerLine;
    }
    const int64_t s64Rows = s64Cnt / s64PerLine + (s64Cnt % s64PerLine > 0 ? 1 : 0);
    const int64_t s64Lowest = s64Idx + s64PerLine * (s64Rows - 1);
    // as many rows higher as it takes to meet a cell, where the last row is too short
    const int64_t s64Over = s64Lowest - s64Cnt;
    return s64Over >= 0 ? s64Lowest - s64PerLine * (s64Over / s64PerLine + 1) : s64Lowest;
}

void osdIconMove(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey)
{
    const int64_t s64Cnt = pstPage->s32ItemCnt;
    const int64_t s64PerLine = pstPage->s32CountPerLine;
    int64_t s64Idx = pstPage->s32SelIdx;
    switch (enKey) {
    case OSD_MENU_KEY_LEFT:
        s64Idx = s64Idx > 0 ? s64Idx - 1 : s64Cnt - 1;
        break;
    case OSD_MENU_KEY_RIGHT:
        s64Idx = s64Idx + 1 != s64Cnt ? s64Idx + 1 : 0;
        break;
    case OSD_MENU_KEY_UP:
        s64Idx = s64PerLine > 0 ? osdIconUp(s64Cnt, s64PerLine, s64Idx) : s64Idx;
        break;
    case OSD_MENU_KEY_DOWN:
        s64Idx = s64PerLine > 0 ? osdIconDown(s64Cnt, s64PerLine, s64Idx) : s64Idx;
        break;
    }
    pstPage->s32SelIdx = osdClampS32(s64Idx);
}
