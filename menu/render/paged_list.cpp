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
#include "menu/render/paged_list.h"

#include <cstdio>

#include "comm/arith.h"
#include "comm/arrow.h"
#include "comm/log.h"
#include "comm/picture_names.h"
#include "comm/shape.h"
#include "comm/text.h"
#include "comm/text_surface.h"
#include "menu/core/item.h"
#include "menu/core/words.h"
#include "menu/render/list.h"
#include "osd_menu.h"

static constexpr tagROW_GEOM_S c_stPagedGeom = {
    /* f32Left */ 0.045f,     /* f32Indent */ 0.025f,
    /* f32FirstGap */ 0.14f,  /* f32NextGap */ 0.01f,
    /* f32MsgFoot */ 0.88f,   /* f32ValueFrame */ 0.84f,
    /* f32CaretPart */ 2.0f,  /* s32DotCursor */ OSD_TEXT_LEN,
    /* s32EmptyAboveBtn */ 0,
};
static constexpr float c_f32PagedSize = 28.0f; // pixels on the base 1920 by 1080
static constexpr float c_f32RightShare = 0.8f; // of what a label placed right leaves of W

static constexpr float c_f32TitleX = 0.07f;     // of W
static constexpr float c_f32TitleY = 0.015f;    // of H
static constexpr float c_f32TitleRuleW = 0.86f; // of W
static constexpr float c_f32TitleRuleH = 0.01f; // of H

static constexpr double c_f64LineX = 0.07;  // of W, in double precision, as the two below
static constexpr double c_f64LineY = 0.02;  // of H
static constexpr double c_f64LineH = 0.005; // of H

struct tagBUTTON_PIC_S {
    const char* pcKey;
    const char* pcPic;
};
static constexpr tagBUTTON_PIC_S c_astButtonPic[] = {{OSD_KEY_FACTORY_RESTORE, OSD_PIC_DEFAULT},
                                                     {OSD_KEY_RESTORE_WB, OSD_PIC_DEFAULT},
                                                     {OSD_KEY_RESTORE_IMG, OSD_PIC_DEFAULT},
                                                     {OSD_KEY_RESTORE_EXP, OSD_PIC_DEFAULT},
                                                     {OSD_KEY_RESTART, OSD_PIC_RESTART}};

static const char* osdPagedPicture(const char* pcKey)
{
    for (const tagBUTTON_PIC_S& stButton : c_astButtonPic) {
        if (osdTextEqual(stButton.pcKey, pcKey)) {
            return stButton.pcPic;
        }
    }
    return OSD_PIC_CONFIRM;
}

static int osdPagedSize() { return osdTrunc(gstMenuMgr.f32Scale * c_f32PagedSize); }

static bool osdPagedBright(tagITEM_NODE_S* pstItem, OSD_BOOL bSelected)
{
    return pstItem->enAttr == STATUS || pstItem->enAttr == TITLE_LINE || osdRowBright(pstItem, bSelected);
}

void osdPagedTurnArrow(const tagPAGE_TURN_S& stTurn)
{
    static constexpr const char* apcPic[2][2] = {{nullptr, OSD_PIC_ARROW_TOP},
                                                 {OSD_PIC_ARROW_BOTTOM, OSD_PIC_ARROW_ALL}}; // next, previous
    const char* pcPic = apcPic[stTurn.bNextPage != 0 ? 1 : 0][stTurn.bPrevPage != 0 ? 1 : 0];
    if (pcPic != nullptr) {
        osdArrowTurn(gstMenuMgr.pstSurface, gstMenuMgr.stCanvas.stMenuRect, pcPic);
    }
}

OSD_SURFACE_PTR osdPagedText(const tagITEM_NODE_S* pstItem, SDL_Rect stRect, int s32Size, OSD_BOOL bBright)
{
    if (pstItem->enAttr == CONFIRM_POP_BTN) { // without a picture the text stays where it is
        osdArrowButton(gstMenuMgr.pstSurface, &stRect, gstMenuMgr.stCanvas.stMenuRect, bBright != 0,
                       osdPagedPicture(pstItem->acItemIndex));
    }
    OSD_SURFACE_PTR pstTxt = osdTextLit(gstMenuMgr.pstFont, pstItem->acItemName, s32Size, bBright);
    if (pstTxt == nullptr) {
        osdTrace("%s %d failed, pstItemNode->acItemIndex = %s\n", OSD_PLACE(OSD_MENU_RenderTxt), pstItem->acItemIndex);
        return nullptr;
    }
    osdRowPut(pstTxt.get(), stRect);
    return pstTxt;
}

bool osdPagedTitle(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor)
{
    const int s32Size = osdPagedSize();
    if (!osdRowSetSize(s32Size, OSD_NAME(OSD_MENU_RenderTitleKETHItem))) {
        return false;
    }
    const float f32MenuW = osdF32(gstMenuMgr.stCanvas.stMenuRect.w);
    const float f32MenuH = osdF32(gstMenuMgr.stCanvas.stMenuRect.h);
    SDL_Rect stTitle = osdRowMeasure(pstItem);
    stTitle.x = osdTrunc(f32MenuW * c_f32TitleX);
    stTitle.y = osdTrunc(osdF32(pstLayoutCursor->y) + osdF32(pstLayoutCursor->h) + f32MenuH * c_f32TitleY);
    if (osdPagedText(pstItem, stTitle, s32Size, 1) == nullptr) {
        osdTrace("%s-%d OSD_MENU_RenderTxt failed\n", OSD_PLACE(OSD_MENU_RenderTitleKETHItem));
        return false;
    }
    const SDL_Rect stRule = {stTitle.x, osdClampS32(stTitle.h + int64_t{2} * stTitle.y),
                             osdTrunc(f32MenuW * c_f32TitleRuleW), osdTrunc(f32MenuH * c_f32TitleRuleH)};
    osdShapeLine(gstMenuMgr.pstSurface, stRule); // a failed fill is ignored
    osdRowEnd(stRule, pstLayoutCursor);
    return true;
}

// The line above an item; the row follows the line then.
static void osdPagedSeparator(SDL_Rect* pstLayoutCursor)
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const double f64Below = static_cast<double>(pstLayoutCursor->y + int64_t{2} * pstLayoutCursor->h);
    SDL_Rect stLine = {};
    stLine.x = osdTruncF64(static_cast<double>(stMenu.w) * c_f64LineX);
    stLine.y = osdTruncF64(static_cast<double>(stMenu.h) * c_f64LineY + f64Below);
    stLine.w = osdClampS32(stMenu.w - int64_t{2} * stLine.x);
    stLine.h = osdTruncF64(static_cast<double>(stMenu.h) * c_f64LineH);
    osdShapeLine(gstMenuMgr.pstSurface, stLine); // a failed fill is ignored
    osdRowEnd(stLine, pstLayoutCursor);
}

OSD_SURFACE_PTR osdPagedName(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, int s32Size, OSD_BOOL bBright,
                             SDL_Rect* pstNameRect)
{
    if (pstItem->bLine != 0) {
        osdPagedSeparator(pstLayoutCursor);
    }
    if (!osdRowSetSize(s32Size, OSD_NAME(OSD_MENU_DrawItemName))) {
        return nullptr;
    }
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    *pstNameRect = osdRowLabel(c_stPagedGeom, pstItem, *pstLayoutCursor);
    if (pstItem->enItemPos == ITEM_POS_RIGHT) {
        pstNameRect->x = osdTrunc(osdF32(osdClampS32(int64_t{stMenu.w} - pstNameRect->w)) * c_f32RightShare);
    }
    OSD_SURFACE_PTR pstName = osdPagedText(pstItem, *pstNameRect, s32Size, bBright);
    if (pstName == nullptr) {
        osdTrace("%s-%d OSD_MENU_RenderTxt failed\n", OSD_PLACE(OSD_MENU_DrawItemName));
    } else if (pstItem->enAttr == SUBPAGE) {
        osdArrowEnter(gstMenuMgr.pstSurface, stMenu, *pstNameRect, bBright != 0);
    }
    return pstName;
}

static OSD_SURFACE_PTR osdPagedValueSurface(const tagROW_S& stRow, const tagROW_VALUE_S& stValue,
                                            const SDL_Rect& stColumn)
{
    const tagITEM_ATTR_E enAttr = stRow.pstItem->enAttr;
    const bool bPlain = enAttr == STATUS || enAttr == CONFIRM || enAttr == CONFIRM_POP;
    const tagWIDGET_TEXT_S stText = osdRowWidget(stRow, stValue);
    if (stRow.pstItem->enCtx == NAME_BAR_VAL) {
        return osdBarSurfaceDimmed(stText, stValue.stBar, stColumn);
    }
    if (stRow.pstItem->enCtx == NAME_VAL && !bPlain) {
        return osdArrowedSurface(stText, stColumn);
    }
    return osdTextLit(stText.pstFont, stText.pcText, stText.s32Size, stText.bBright);
}

bool osdPagedRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    tagROW_S stRow = {pstItem, gstMenuMgr.pstFont, osdPagedSize(), osdPagedBright(pstItem, bSelected), {}};
    const OSD_SURFACE_PTR pstName =
        osdPagedName(pstItem, pstLayoutCursor, stRow.s32Size, stRow.bBright, &stRow.stLabel);
    if (pstName == nullptr) {
        OSD_TRACE_FAILED(OSD_MENU_RenderVerticalKETHItem);
        return false;
    }
    if (osdItemHasValue(pstItem)) {
        osdRowDrawValue(c_stPagedGeom, stRow, osdPagedValueSurface);
    }
    osdRowEnd(stRow.stLabel, pstLayoutCursor);
    osdRowSubItems(pstItem, pstLayoutCursor, osdPagedRow);
    return true;
}

// The title with the number of the page; a joined text that is too long loses its end.
static void osdPagedHead(const tagPAGE_NODE_S* pstPage, SDL_Rect* pstLayoutCursor)
{
    tagITEM_NODE_S stTitle = osdRowOfText(pstPage->acTitle, ITEM_LEVEL_TOP, TITLE_LINE);
    if (pstPage->stTurn.bCurPagesNum != 0) {
        char acJoined[2 * OSD_TEXT_LEN + 2];
        (void)snprintf(acJoined, sizeof(acJoined), "%.31s  %.31s", pstPage->acTitle, pstPage->stTurn.acCurPagesNum);
        osdTextSet(stTitle.acItemName, acJoined);
        osdPagedTurnArrow(pstPage->stTurn);
    }
    osdPagedTitle(&stTitle, pstLayoutCursor); // without a title the list starts lower
}

void osdPagedPage(tagPAGE_NODE_S* pstPage)
{
    osdListDraw(pstPage, {osdPagedRow, osdPagedHead, true});
    osdListMessage();
}
