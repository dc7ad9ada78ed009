// The popups of the layouts "horizontal_align" and "horizontal_align_keth", text only. Fractions of the popup R:
//
//     +--------------------------------+
//     |             Title              |   0.15 R.h below the top
//     |            Message             |   0.1 R.h below the title, only in the second layout
//     |      Yes       |      No       |   a gap of R.h below the text above; each centred in its cell
//     +--------------------------------+
#include "menu/render/popup.h"

#include "comm/arith.h"
#include "comm/log.h"
#include "comm/text_surface.h"
#include "menu/core/item_walk.h"
#include "menu/render/row.h"
#include "osd_menu.h"

static constexpr float c_f32AloneX = 0.1f;  // of the cell's width, a text placed left
static constexpr float c_f32AloneY = 0.15f; // of R.h, a text alone on its line
static constexpr float c_f32MsgGap = 0.1f;  // of R.h, above the message

struct tagPOPUP_S {
    const SDL_Rect& stRect;
    float f32Size;                            // pixels on the base 1920 by 1080
    float f32LineGap;                         // of R.h, above a line of several items
    bool bMsg;                                // has a message line
    TTF_Font* (*pfnFont)(OSD_BOOL bSelected); // that draws; the regular font measures
    const char* pcFunc;                       // that a line in the log names
};

static constexpr tagITEM_LEVEL_E c_enMsgLevel = static_cast<tagITEM_LEVEL_E>(2); // no top-level item stands so deep

static TTF_Font* osdPopupPlainFont(OSD_BOOL /*bSelected*/) { return gstMenuMgr.pstFont; }

static const tagPOPUP_S c_stPopup = {
    gstMenuMgr.stPopRect, 32.0f, 0.2f, false, osdRowSkinFont, OSD_NAME(OSD_MENU_RenderHorizontalItem)};
static const tagPOPUP_S c_stMsgPopup = {
    gstMenuMgr.stPopMsgRect, 28.0f, 0.1f, true, osdPopupPlainFont, OSD_NAME(OSD_MENU_RenderHorizontalItemWithKETH)};

static int osdPopupLeft(const tagPOPUP_S& stPopup, const tagITEM_NODE_S* pstItem, int s32TxtW)
{
    const SDL_Rect& stRect = stPopup.stRect;
    const int64_t s64CellW = pstItem->s32ItemCnt != 0 ? int64_t{stRect.w} / pstItem->s32ItemCnt : 0;
    if (pstItem->s32ItemCnt == 1 && pstItem->enItemPos != ITEM_POS_CENTER) {
        return osdTrunc(osdF32(osdClampS32(s64CellW)) * c_f32AloneX + osdF32(stRect.x));
    }
    const int64_t s64Cell = pstItem->s32ItemCnt == 1 ? 0 : pstItem->s32ItemIndexOnLine;
    return osdClampS32(stRect.x + s64CellW * s64Cell + (s64CellW - s32TxtW) / 2);
}

static int osdPopupTop(const tagPOPUP_S& stPopup, const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove)
{
    const float f32H = osdF32(stPopup.stRect.h);
    const float f32Foot = osdF32(osdClampS32(int64_t{stAbove.y} + stAbove.h));
    if (pstItem->s32ItemCnt == 1) {
        const bool bMsg = stPopup.bMsg && pstItem->enLevel == c_enMsgLevel;
        return bMsg ? osdTrunc(f32H * c_f32MsgGap + f32Foot) : osdTrunc(f32H * c_f32AloneY + osdF32(stPopup.stRect.y));
    }
    return pstItem->s32ItemIndexOnLine == 0 ? osdTrunc(f32H * stPopup.f32LineGap + f32Foot) : stAbove.y;
}

static bool osdPopupText(const tagPOPUP_S& stPopup, const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor,
                         OSD_BOOL bSelected)
{
    const int s32Size = osdTrunc(stPopup.f32Size * gstMenuMgr.f32Scale);
    if (!osdRowSetSize(s32Size, stPopup.pcFunc)) {
        return false;
    }
    SDL_Rect stTxt = osdRowMeasure(pstItem);
    stTxt.x = osdPopupLeft(stPopup, pstItem, stTxt.w);
    stTxt.y = osdPopupTop(stPopup, pstItem, *pstLayoutCursor);
    const OSD_SURFACE_PTR pstTxt = osdTextLit(stPopup.pfnFont(bSelected), pstItem->acItemName, s32Size, bSelected);
    if (pstTxt == nullptr) {
        osdTrace("%s %d failed\n", stPopup.pcFunc, __LINE__);
        return false;
    }
    osdRowPut(pstTxt.get(), stTxt);
    osdRowEnd(stTxt, pstLayoutCursor);
    return true;
}

bool osdPopupItem(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPopupText(c_stPopup, pstItem, pstLayoutCursor, bSelected);
}

bool osdPopupMsgItem(const tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPopupText(c_stMsgPopup, pstItem, pstLayoutCursor, bSelected);
}

// A line of the page itself, in the middle and not selected.
static void osdPopupLine(const tagPOPUP_S& stPopup, const OSD_TEXT& acText, tagITEM_LEVEL_E enLevel,
                         SDL_Rect* pstLayoutCursor)
{
    tagITEM_NODE_S stLine = osdRowOfText(acText, enLevel, TITLE_LINE);
    stLine.enItemPos = ITEM_POS_CENTER;
    stLine.s32ItemCnt = 1;
    osdPopupText(stPopup, &stLine, pstLayoutCursor, 0);
}

// A text that fails leaves the popup to the others.
static void osdPopupDraw(const tagPOPUP_S& stPopup, tagPAGE_NODE_S* pstPage)
{
    SDL_Rect stCursor = {};
    if (pstPage->bTitle == 1) {
        osdPopupLine(stPopup, pstPage->acTitle, ITEM_LEVEL_UNDER_TITLE, &stCursor);
    }
    if (stPopup.bMsg && pstPage->acPageMsg[0] != '\0') {
        osdPopupLine(stPopup, pstPage->acPageMsg, c_enMsgLevel, &stCursor);
    }
    for (const tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        osdPopupText(stPopup, pstItem, &stCursor, pstItem->bActive);
    }
}

void osdPopupPage(tagPAGE_NODE_S* pstPage) { osdPopupDraw(c_stPopup, pstPage); }

void osdPopupMsgPage(tagPAGE_NODE_S* pstPage) { osdPopupDraw(c_stMsgPopup, pstPage); }
