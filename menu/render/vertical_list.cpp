// The list of layout "vertical_align". Fractions of the menu's width W and height H:
//
//     0.01 W                       0.95 W - vw            0.95 W
//     |                            |                      |
//     |Title                                              |   0.01 H below the top
//     | Label                      |value or bar          |   rows 0.02 H apart, one more 0.01 W to the right a level
//     |  Label of a sub-item       |value                 |   vw = 0.89 W / 2
//     |                                                   |
//     | Message line                                      |   foot at 0.95 H
#include <SDL_ttf.h>

#include <algorithm>
#include <cstring>

#include "comm/arith.h"
#include "comm/guard.h"
#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/core/value_bind.h"
#include "menu/render/row.h"
#include "menu/render/value.h"
#include "osd_comm.h"
#include "osd_menu.h"

static constexpr float gs_f32Left = 0.01f;       // of W, first level of style 0 and every level of the others
static constexpr float gs_f32Indent = 0.01f;     // of W, a level, style 0 only
static constexpr float gs_f32FirstGap = 0.01f;   // of H, above the first row
static constexpr float gs_f32NextGap = 0.02f;    // of H, above every other row
static constexpr float gs_f32MsgFoot = 0.95f;    // of H
static constexpr float gs_f32ValueRight = 0.95f; // of W
static constexpr float gs_f32ValueFrame = 0.89f; // of W, the width that label and value share
static constexpr float gs_f32ValueShare = 0.5f;  // of that frame
static constexpr int gs_s32PlainSize = 25;       // pixels on the base 1920 by 1080, styles other than 0
static constexpr int gs_s32LevelSize = 4;        // style 0: this times (8 - level)
static constexpr int32_t gs_s32DotCursor = 5;    // an edit cursor behind this place stands one dot further right

// Everything that one row needs, worked out once.
struct tagROW_S {
    tagITEM_NODE_S* pstItem;
    TTF_Font* pstFont; // of the value, and of the label unless it stands alone
    int s32Size;
    OSD_BOOL bBright;
    SDL_Rect stLabel; // place of the label, size of its text
};

static TTF_Font* osdVerticalFont(OSD_BOOL bSelected)
{
    return enMenuStyle == 1 && bSelected != 0 ? gstMenuMgr.pstSelectFont : gstMenuMgr.pstFont;
}

static int osdVerticalSize(tagITEM_LEVEL_E enLevel)
{
    const int s32Base = enMenuStyle == 0 ? osdClampS32((8 - int64_t{enLevel}) * gs_s32LevelSize) : gs_s32PlainSize;
    return osdTrunc(osdF32(s32Base) * gstMenuMgr.f32Scale);
}

static int osdVerticalLeft(const tagITEM_NODE_S* pstItem, int s32TxtW)
{
    const int s32MenuW = gstMenuMgr.stCanvas.stMenuRect.w;
    if (pstItem->enItemPos == ITEM_POS_CENTER) {
        return osdClampS32((int64_t{s32MenuW} - s32TxtW) / 2);
    }
    if (enMenuStyle == 0) {
        return osdTrunc((osdF32(pstItem->enLevel) * gs_f32Indent + gs_f32Left) * osdF32(s32MenuW));
    }
    return osdTrunc(osdF32(s32MenuW) * gs_f32Left);
}

static int osdVerticalTop(const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove, int s32TxtH)
{
    const float f32MenuH = osdF32(gstMenuMgr.stCanvas.stMenuRect.h);
    if (pstItem->enAttr == MSG_LINE) { // at the foot, wherever the list ended
        return osdTrunc(f32MenuH * gs_f32MsgFoot - osdF32(s32TxtH));
    }
    if (stAbove.y == 0) { // no row drawn yet
        return osdTrunc(osdF32(stAbove.h) + f32MenuH * gs_f32FirstGap);
    }
    const int s32Next = osdTrunc(osdF32(stAbove.y) + osdF32(stAbove.h) + f32MenuH * gs_f32NextGap);
    const int s32Empty = pstItem->enAttr == CONFIRM_POP_BTN ? s32TxtH : 0; // a button keeps one row's distance
    return osdClampS32(int64_t{s32Next} + s32Empty);
}

// Sets both fonts to the row's size and measures the label.
static int osdVerticalMeasure(tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove, OSD_BOOL bSelected, tagROW_S* pstRow)
{
    pstRow->pstItem = pstItem;
    pstRow->bBright = bSelected == 1 && osdMenuIsSubItemSelected(pstItem) == 0 ? 1 : 0;
    pstRow->pstFont = osdVerticalFont(bSelected);
    pstRow->s32Size = osdVerticalSize(pstItem->enLevel);
    (void)TTF_SetFontSize(gstMenuMgr.pstFont, pstRow->s32Size); // the bold font's answer counts for both
    if (TTF_SetFontSize(gstMenuMgr.pstSelectFont, pstRow->s32Size) != 0) {
        osdTrace("%s %d\n", OSD_PLACE);
        return -1;
    }
    SDL_Rect& stLabel = pstRow->stLabel;
    (void)TTF_SizeUTF8(gstMenuMgr.pstFont, pstItem->acItemName, &stLabel.w, &stLabel.h); // 0 by 0 on failure
    stLabel.x = osdVerticalLeft(pstItem, stLabel.w);
    stLabel.y = osdVerticalTop(pstItem, stAbove, stLabel.h);
    return 0;
}

// The value column on the row of the label.
static SDL_Rect osdVerticalColumn(const SDL_Rect& stLabel)
{
    const float f32MenuW = osdF32(gstMenuMgr.stCanvas.stMenuRect.w);
    const int s32W = osdTrunc(f32MenuW * gs_f32ValueFrame * gs_f32ValueShare);
    return {osdTrunc(f32MenuW * gs_f32ValueRight - osdF32(s32W)), stLabel.y, s32W, stLabel.h};
}

static int osdTextWidth(const char* pcText)
{
    int s32W = 0;
    (void)TTF_SizeUTF8(gstMenuMgr.pstFont, pcText, &s32W, nullptr); // 0 on failure
    return s32W;
}

// The bar under the digit that is being edited.
static void osdCaretDraw(int32_t s32Cursor, const char (&acValue)[OSD_TEXT_LEN], const SDL_Rect& stColumn)
{
    const int32_t s32At = s32Cursor < 0 ? 0 : std::min<int32_t>(s32Cursor, OSD_TEXT_LEN - 1);
    const char acDigit[2] = {acValue[s32At], '\0'};
    const int s32DigitW = osdTextWidth(acDigit);
    const int s32DotW = osdTextWidth(".");
    int s32Left = stColumn.x;
    if (s32At > 0) {
        char acBefore[OSD_TEXT_LEN];
        memcpy(acBefore, acValue, sizeof(acBefore));
        acBefore[s32At] = '\0';
        s32Left += osdTextWidth(acBefore) + (s32At > gs_s32DotCursor ? s32DotW : 0);
    }
    const float f32Gap = osdF32(gstMenuMgr.stCanvas.stMenuRect.h) * gs_f32NextGap / 3.0f;
    const int s32Foot = osdClampS32(int64_t{stColumn.y} + stColumn.h);
    const SDL_Rect stCaret = {s32Left, osdTrunc(osdF32(s32Foot) + f32Gap), s32DigitW, osdTrunc(f32Gap)};
    (void)OSD_COMM_DrawLine(gstMenuMgr.pstSurface, stCaret); // a row without caret is still a row
}

static OSD_SURFACE_PTR osdVerticalValue(const tagROW_S& stRow, const SDL_Rect& stColumn)
{
    char acValue[OSD_TEXT_LEN] = {};
    int s32Pos = 0; // a text has no place on a bar: the block stands at the left end
    int s32Cnt = 1;
    (void)osdMenuGetItemValInfo(stRow.pstItem, acValue, &s32Pos, &s32Cnt); // empty text on failure
    SDL_Surface* pstValue = nullptr;                                       // stays null without a text
    if (stRow.pstItem->enCtx == NAME_BAR_VAL) {
        (void)OSD_COMM_GetBarTxtSurface(stRow.pstFont, acValue, s32Pos, s32Cnt, stRow.s32Size, stRow.bBright, stColumn,
                                        &pstValue);
    } else {
        (void)OSD_COMM_GetTxtSurface(stRow.pstFont, acValue, stRow.s32Size, stRow.bBright, &pstValue);
    }
    if (stRow.pstItem->enCtx == NAME_IP_VAL && stRow.pstItem->bEditing == 1) {
        osdCaretDraw(stRow.pstItem->s32EditCursor, acValue, stColumn);
    }
    return OSD_SURFACE_PTR(pstValue);
}

static int osdVerticalDrawRow(const tagROW_S& stRow)
{
    tagITEM_NODE_S* pstItem = stRow.pstItem;
    TTF_Font* pstFont = pstItem->enCtx == NAME ? gstMenuMgr.pstSelectFont : stRow.pstFont;
    SDL_Surface* pstLabel = nullptr;
    if (OSD_COMM_GetTxtSurface(pstFont, pstItem->acItemName, stRow.s32Size, stRow.bBright, &pstLabel) != 0) {
        osdTrace("%s %d failed, pstItemNode->acItemIndex = %s\n", OSD_PLACE, pstItem->acItemIndex);
        return -1;
    }
    const OSD_SURFACE_PTR pstOwner(pstLabel);
    (void)OSD_MENU_FillData2Canvas(pstLabel, stRow.stLabel); // always 0
    if (osdContextHasValue(pstItem->enCtx)) {
        const SDL_Rect stColumn = osdVerticalColumn(stRow.stLabel);
        const OSD_SURFACE_PTR pstValue = osdVerticalValue(stRow, stColumn);
        if (pstValue != nullptr) {
            (void)OSD_MENU_FillData2Canvas(pstValue.get(), stColumn);
        }
    }
    return 0;
}

int OSD_MENU_RenderVerticalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    tagROW_S stRow = {};
    if (osdVerticalMeasure(pstItemNode, *pstLayoutCursor, bSelected, &stRow) != 0 || osdVerticalDrawRow(stRow) != 0) {
        return -1;
    }
    pstLayoutCursor->y = stRow.stLabel.y;
    pstLayoutCursor->h = stRow.stLabel.h;
    if (osdMenuHasSubItem(pstItemNode) == 1) {
        for (tagITEM_NODE_S* pstSub : osdItems(&pstItemNode->astSubList[pstItemNode->s32CurIdx])) {
            (void)OSD_MENU_RenderVerticalItem(pstSub, pstLayoutCursor, pstSub->bActive); // the others go on
        }
    }
    return 0;
}

int OSD_MENU_RenderVerticalCanvas(tagPAGE_NODE_S* pstPage)
{
    SDL_Rect stCursor = {};
    if (pstPage->bTitle == 1) {
        tagITEM_NODE_S stTitle = osdRowOfText(pstPage->acTitle, ITEM_LEVEL_TOP, TITLE_LINE);
        (void)OSD_MENU_RenderVerticalItem(&stTitle, &stCursor, 0); // a failed row leaves the page to the others
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        (void)OSD_MENU_RenderVerticalItem(pstItem, &stCursor, pstItem->bActive);
        if (osdMenuJudgeNetWorkofDhcp(pstItem) == 1) {
            break;
        }
    }
    return OSD_MENU_HandleKeyMsg(stCursor);
}
