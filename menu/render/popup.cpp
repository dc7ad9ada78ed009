// The popups of the layouts "horizontal_align" and "horizontal_align_keth", text only. Fractions of the popup R:
//
//     +--------------------------------+
//     |             Title              |   0.15 R.h below the top
//     |            Message             |   0.1 R.h below the title, only in the second layout
//     |      Yes       |      No       |   a gap of R.h below the text above; each centred in its cell
//     +--------------------------------+
#include "comm/arith.h"
#include "comm/guard.h"
#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/render/row.h"
#include "osd_comm.h"
#include "osd_page.h"

static constexpr float gs_f32AloneX = 0.1f;  // of the cell's width, a text placed left
static constexpr float gs_f32AloneY = 0.15f; // of R.h, a text alone on its line
static constexpr float gs_f32MsgGap = 0.1f;  // of R.h, above the message

struct tagPOPUP_S {
    const SDL_Rect& stRect;
    float f32Size;                            // pixels on the base 1920 by 1080
    float f32LineGap;                         // of R.h, above a line of several items
    bool bMsg;                                // has a message line
    TTF_Font* (*pfnFont)(OSD_BOOL bSelected); // that draws; the regular font measures
};

static constexpr tagITEM_LEVEL_E gs_enMsgLevel = static_cast<tagITEM_LEVEL_E>(2); // no top-level item stands so deep

static TTF_Font* osdPopupPlainFont(OSD_BOOL /*bSelected*/) { return gstMenuMgr.pstFont; }

static const tagPOPUP_S gs_stPopup = {gstMenuMgr.stPopRect, 32.0f, 0.2f, false, osdRowSkinFont};
static const tagPOPUP_S gs_stMsgPopup = {gstMenuMgr.stPopMsgRect, 28.0f, 0.1f, true, osdPopupPlainFont};

static int osdPopupLeft(const tagPOPUP_S& stPopup, const tagITEM_NODE_S* pstItem, int s32TxtW)
{
    const SDL_Rect& stRect = stPopup.stRect;
    const int64_t s64CellW = pstItem->s32ItemCnt != 0 ? int64_t{stRect.w} / pstItem->s32ItemCnt : 0;
    if (pstItem->s32ItemCnt == 1 && pstItem->enItemPos != ITEM_POS_CENTER) {
        return osdTrunc(osdF32(osdClampS32(s64CellW)) * gs_f32AloneX + osdF32(stRect.x));
    }
    const int64_t s64Cell = pstItem->s32ItemCnt == 1 ? 0 : pstItem->s32ItemIndexOnLine;
    return osdClampS32(stRect.x + s64CellW * s64Cell + (s64CellW - s32TxtW) / 2);
}

static int osdPopupTop(const tagPOPUP_S& stPopup, const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove)
{
    const float f32H = osdF32(stPopup.stRect.h);
    const float f32Foot = osdF32(osdClampS32(int64_t{stAbove.y} + stAbove.h));
    if (pstItem->s32ItemCnt == 1) {
        const bool bMsg = stPopup.bMsg && pstItem->enLevel == gs_enMsgLevel;
        return bMsg ? osdTrunc(f32H * gs_f32MsgGap + f32Foot)
                    : osdTrunc(f32H * gs_f32AloneY + osdF32(stPopup.stRect.y));
    }
    return pstItem->s32ItemIndexOnLine == 0 ? osdTrunc(f32H * stPopup.f32LineGap + f32Foot) : stAbove.y;
}

static int osdPopupItem(const tagPOPUP_S& stPopup, tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor,
                        OSD_BOOL bSelected)
{
    const int s32Size = osdTrunc(stPopup.f32Size * gstMenuMgr.f32Scale);
    if (osdRowSetSize(s32Size) != 0) {
        return -1;
    }
    SDL_Rect stTxt = osdRowMeasure(pstItem);
    stTxt.x = osdPopupLeft(stPopup, pstItem, stTxt.w);
    stTxt.y = osdPopupTop(stPopup, pstItem, *pstLayoutCursor);
    SDL_Surface* pstTxt = nullptr;
    if (OSD_COMM_GetTxtSurface(stPopup.pfnFont(bSelected), pstItem->acItemName, s32Size, bSelected == 1 ? 1 : 0,
                               &pstTxt) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    const OSD_SURFACE_PTR pstOwner(pstTxt);
    (void)OSD_MENU_FillData2Canvas(pstTxt, stTxt); // always 0
    osdRowEnd(stTxt, pstLayoutCursor);
    return 0;
}

int OSD_MENU_RenderHorizontalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPopupItem(gs_stPopup, pstItemNode, pstLayoutCursor, bSelected);
}

int OSD_MENU_RenderHorizontalItemWithKETH(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPopupItem(gs_stMsgPopup, pstItemNode, pstLayoutCursor, bSelected);
}

// A line of the page itself, in the middle and not selected.
static void osdPopupText(const tagPOPUP_S& stPopup, const char (&acText)[OSD_TEXT_LEN], tagITEM_LEVEL_E enLevel,
                         SDL_Rect* pstLayoutCursor)
{
    tagITEM_NODE_S stLine = osdRowOfText(acText, enLevel, TITLE_LINE);
    stLine.enItemPos = ITEM_POS_CENTER;
    stLine.s32ItemCnt = 1;
    (void)osdPopupItem(stPopup, &stLine, pstLayoutCursor, 0); // the others go on
}

static void osdPopupItems(const tagPOPUP_S& stPopup, tagPAGE_NODE_S* pstPage, SDL_Rect* pstLayoutCursor)
{
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        (void)osdPopupItem(stPopup, pstItem, pstLayoutCursor, pstItem->bActive); // the others go on
    }
}

static void osdPopupTitle(const tagPOPUP_S& stPopup, const tagPAGE_NODE_S* pstPage, SDL_Rect* pstLayoutCursor)
{
    if (pstPage->bTitle == 1) {
        osdPopupText(stPopup, pstPage->acTitle, ITEM_LEVEL_UNDER_TITLE, pstLayoutCursor);
    }
}

int OSD_MENU_RenderHorizontalCanvas(tagPAGE_NODE_S* pstPage)
{
    SDL_Rect stCursor = {};
    osdPopupTitle(gs_stPopup, pstPage, &stCursor);
    osdPopupItems(gs_stPopup, pstPage, &stCursor);
    return 0;
}

int OSD_MENU_RenderHorizontalCanvasWithKETH(tagPAGE_NODE_S* pstPage)
{
    SDL_Rect stCursor = {};
    osdPopupTitle(gs_stMsgPopup, pstPage, &stCursor);
    if (pstPage->acPageMsg[0] != '\0') {
        osdPopupText(gs_stMsgPopup, pstPage->acPageMsg, gs_enMsgLevel, &stCursor);
    }
    osdPopupItems(gs_stMsgPopup, pstPage, &stCursor);
    return 0;
}
