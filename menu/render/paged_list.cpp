// The list of layout "vertical_align_keth". Fractions of the menu's width W and height H:
//
//        0.07 W                  0.95 W - vw          0.95 W
//        |Title  page number     |                    |        0.015 H below the top, bright
//        ==========================================            as far below the title as that below the top
//     0.045 W (0.025 W more a level)
//     |Label                     |< value >           |        rows 0.01 H apart, the first at 0.14 H without title
//     |Label >                   |value or bar        |        vw = 0.84 W / 2
//     ------------------------------------------------         separator of an item with bLine
//     |[picture] Button                               |
//     |Message line                                   |  [turn] foot at 0.88 H; arrows in the corner
#include <cstdio>

#include "comm/arith.h"
#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/value_bind.h"
#include "menu/core/words.h"
#include "menu/render/row.h"
#include "osd_comm.h"
#include "osd_page.h"

static constexpr tagROW_GEOM_S gs_stPagedGeom = {
    /* f32Left */ 0.045f,     /* f32Indent */ 0.025f,
    /* f32FirstGap */ 0.14f,  /* f32NextGap */ 0.01f,
    /* f32MsgFoot */ 0.88f,   /* f32ValueFrame */ 0.84f,
    /* f32CaretPart */ 2.0f,  /* s32DotCursor */ OSD_TEXT_LEN,
    /* s32EmptyAboveBtn */ 0,
};
static constexpr float gs_f32PagedSize = 28.0f; // pixels on the base 1920 by 1080
static constexpr float gs_f32RightShare = 0.8f; // of what a label placed right leaves of W

static constexpr float gs_f32TitleX = 0.07f;     // of W
static constexpr float gs_f32TitleY = 0.015f;    // of H
static constexpr float gs_f32TitleRuleW = 0.86f; // of W
static constexpr float gs_f32TitleRuleH = 0.01f; // of H

static constexpr double gs_f64LineX = 0.07;  // of W, in double precision, as the two below
static constexpr double gs_f64LineY = 0.02;  // of H
static constexpr double gs_f64LineH = 0.005; // of H

struct tagBUTTON_PIC_S {
    const char* pcKey;
    char acPic[8];
};
static constexpr tagBUTTON_PIC_S gs_astButtonPic[] = {{OSD_KEY_FACTORY_RESTORE, "default"},
                                                      {OSD_KEY_RESTORE_WB, "default"},
                                                      {OSD_KEY_RESTORE_IMG, "default"},
                                                      {OSD_KEY_RESTORE_EXP, "default"},
                                                      {OSD_KEY_RESTART, "restart"}};

static tagBUTTON_PIC_S osdPagedButton(const char* pcKey)
{
    for (const tagBUTTON_PIC_S& stButton : gs_astButtonPic) {
        if (osdTextEqual(stButton.pcKey, pcKey)) {
            return stButton;
        }
    }
    return {pcKey, "confirm"};
}

static int osdPagedSize() { return osdTrunc(gstMenuMgr.f32Scale * gs_f32PagedSize); }

static OSD_BOOL osdPagedBright(tagITEM_NODE_S* pstItem, OSD_BOOL bSelected)
{
    const bool bAlways = pstItem->enAttr == STATUS || pstItem->enAttr == TITLE_LINE;
    return bAlways ? 1 : osdRowBright(pstItem, bSelected);
}

int osdMenuDrawTurnArrow(tagPAGE_TURN_S* pstTurn)
{
    char acAll[] = "arrow_all";
    char acNext[] = "arrow_bottom";
    char acPrev[] = "arrow_top";
    char* pcPic = pstTurn->bNextPage != 0 ? (pstTurn->bPrevPage != 0 ? acAll : acNext) : acPrev;
    if (pstTurn->bNextPage != 0 || pstTurn->bPrevPage != 0) {
        (void)OSD_COMM_DrawTurnArrows(gstMenuMgr.pstSurface, gstMenuMgr.stCanvas.stMenuRect, pcPic); // reports itself
    }
    return 0;
}

int OSD_MENU_RenderTxt(tagITEM_NODE_S* pstItemNode, SDL_Rect stRect, int s32FontSize, SDL_Surface** ppstSurface,
                       OSD_BOOL bBright)
{
    if (pstItemNode->enAttr == CONFIRM_POP_BTN) {
        tagBUTTON_PIC_S stButton = osdPagedButton(pstItemNode->acItemIndex);
        (void)OSD_COMM_DrawConfirmImg(gstMenuMgr.pstSurface, &stRect, gstMenuMgr.stCanvas.stMenuRect, bBright,
                                      stButton.acPic); // without a picture the text stays where it is
    }
    if (OSD_COMM_GetTxtSurface(gstMenuMgr.pstFont, pstItemNode->acItemName, s32FontSize, bBright, ppstSurface) != 0) {
        osdTrace("%s %d failed, pstItemNode->acItemIndex = %s\n", OSD_PLACE, pstItemNode->acItemIndex);
        return -1;
    }
    return OSD_MENU_FillData2Canvas(*ppstSurface, stRect);
}

int OSD_MENU_RenderTitleKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL /*bSelected*/)
{
    const int s32Size = osdPagedSize();
    if (osdRowSetSize(s32Size) != 0) {
        return -1;
    }
    const float f32MenuW = osdF32(gstMenuMgr.stCanvas.stMenuRect.w);
    const float f32MenuH = osdF32(gstMenuMgr.stCanvas.stMenuRect.h);
    SDL_Rect stTitle = osdRowMeasure(pstItemNode);
    stTitle.x = osdTrunc(f32MenuW * gs_f32TitleX);
    stTitle.y = osdTrunc(osdF32(pstLayoutCursor->y) + osdF32(pstLayoutCursor->h) + f32MenuH * gs_f32TitleY);
    SDL_Surface* pstTitle = nullptr;
    if (OSD_MENU_RenderTxt(pstItemNode, stTitle, s32Size, &pstTitle, 1) != 0) {
        osdTrace("%s-%d OSD_MENU_RenderTxt failed\n", OSD_PLACE);
        return -1;
    }
    SDL_FreeSurface(pstTitle);
    const SDL_Rect stRule = {stTitle.x, osdClampS32(stTitle.h + int64_t{2} * stTitle.y),
                             osdTrunc(f32MenuW * gs_f32TitleRuleW), osdTrunc(f32MenuH * gs_f32TitleRuleH)};
    (void)OSD_COMM_DrawLine(gstMenuMgr.pstSurface, stRule); // a title without rule is still a title
    osdRowEnd(stRule, pstLayoutCursor);
    return 0;
}

// The line above an item; the row follows the line then.
static void osdPagedSeparator(SDL_Rect* pstLayoutCursor)
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const double f64Below = static_cast<double>(pstLayoutCursor->y + int64_t{2} * pstLayoutCursor->h);
    SDL_Rect stLine = {};
    stLine.x = osdTruncF64(static_cast<double>(stMenu.w) * gs_f64LineX);
    stLine.y = osdTruncF64(static_cast<double>(stMenu.h) * gs_f64LineY + f64Below);
    stLine.w = osdClampS32(stMenu.w - int64_t{2} * stLine.x);
    stLine.h = osdTruncF64(static_cast<double>(stMenu.h) * gs_f64LineH);
    (void)OSD_COMM_DrawLine(gstMenuMgr.pstSurface, stLine); // a row without line is still a row
    osdRowEnd(stLine, pstLayoutCursor);
}

int OSD_MENU_DrawItemName(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, int s32FontSize, OSD_BOOL bBright,
                          SDL_Rect* pstNameRect, SDL_Surface** ppstSurface)
{
    if (pstItemNode->bLine != 0) {
        osdPagedSeparator(pstLayoutCursor);
    }
    if (osdRowSetSize(s32FontSize) != 0) {
        return -1;
    }
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    *pstNameRect = osdRowLabel(gs_stPagedGeom, pstItemNode, *pstLayoutCursor);
    if (pstItemNode->enItemPos == ITEM_POS_RIGHT) {
        pstNameRect->x = osdTrunc(osdF32(osdClampS32(int64_t{stMenu.w} - pstNameRect->w)) * gs_f32RightShare);
    }
    if (OSD_MENU_RenderTxt(pstItemNode, *pstNameRect, s32FontSize, ppstSurface, bBright) != 0) {
        osdTrace("%s-%d OSD_MENU_RenderTxt failed\n", OSD_PLACE);
        return -1;
    }
    if (pstItemNode->enAttr == SUBPAGE) {
        (void)OSD_COMM_DrawSubPageEnter(gstMenuMgr.pstSurface, stMenu, *pstNameRect, bBright); // reports itself
    }
    return 0;
}

static OSD_SURFACE_PTR osdPagedValueSurface(const tagROW_S& stRow, tagROW_VALUE_S stValue, const SDL_Rect& stColumn)
{
    const tagITEM_ATTR_E enAttr = stRow.pstItem->enAttr;
    const bool bPlain = enAttr == STATUS || enAttr == CONFIRM || enAttr == CONFIRM_POP;
    SDL_Surface* pstValue = nullptr; // stays null without a text
    if (stRow.pstItem->enCtx == NAME_BAR_VAL) {
        (void)OSD_COMM_GetBarTxtSurfaceWithKETH(stRow.pstFont, stValue.acText, stValue.s32Pos, stValue.s32Cnt,
                                                stRow.s32Size, stRow.bBright, stColumn, &pstValue);
    } else if (stRow.pstItem->enCtx == NAME_VAL && !bPlain) {
        (void)OSD_COMM_GetTxtSurfaceAroundArrows(stRow.pstFont, stValue.acText, stRow.s32Size, stRow.bBright, stColumn,
                                                 &pstValue);
    } else {
        (void)OSD_COMM_GetTxtSurface(stRow.pstFont, stValue.acText, stRow.s32Size, stRow.bBright, &pstValue);
    }
    return OSD_SURFACE_PTR(pstValue);
}

int OSD_MENU_RenderVerticalKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    tagROW_S stRow = {pstItemNode, gstMenuMgr.pstFont, osdPagedSize(), osdPagedBright(pstItemNode, bSelected), {}};
    SDL_Surface* pstLabel = nullptr;
    if (OSD_MENU_DrawItemName(pstItemNode, pstLayoutCursor, stRow.s32Size, stRow.bBright, &stRow.stLabel, &pstLabel) !=
        0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    const OSD_SURFACE_PTR pstOwner(pstLabel);
    if (osdContextHasValue(pstItemNode->enCtx)) {
        osdRowDrawValue(gs_stPagedGeom, stRow, osdPagedValueSurface);
    }
    osdRowEnd(stRow.stLabel, pstLayoutCursor);
    osdRowSubItems(pstItemNode, pstLayoutCursor, OSD_MENU_RenderVerticalKETHItem);
    return 0;
}

static void osdPagedTitle(tagPAGE_NODE_S* pstPage, SDL_Rect* pstLayoutCursor)
{
    tagITEM_NODE_S stTitle = osdRowOfText(pstPage->acTitle, ITEM_LEVEL_TOP, TITLE_LINE);
    if (pstPage->stTurn.bCurPagesNum != 0) {
        char acJoined[2 * OSD_TEXT_LEN + 2];
        (void)snprintf(acJoined, sizeof(acJoined), "%.31s  %.31s", pstPage->acTitle, pstPage->stTurn.acCurPagesNum);
        osdTextSet(stTitle.acItemName, acJoined);     // a joined text that is too long loses its end
        (void)osdMenuDrawTurnArrow(&pstPage->stTurn); // always 0
    }
    (void)OSD_MENU_RenderTitleKETHItem(&stTitle, pstLayoutCursor, 0); // without a title the list starts lower
}

int OSD_MENU_RenderVerticalCanvasWithKETH(tagPAGE_NODE_S* pstPage)
{
    SDL_Rect stCursor = {};
    if (pstPage->bTitle == 1) {
        osdPagedTitle(pstPage, &stCursor);
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        (void)OSD_MENU_RenderVerticalKETHItem(pstItem, &stCursor, pstItem->bActive); // the others go on
        if (osdMenuJudgeNetWorkofDhcp(pstItem) == 1) {
            break;
        }
    }
    return OSD_MENU_HandleKeyMsg(stCursor);
}
