#include "menu/render/row.h"

#include <algorithm>
#include <cstring>

#include "comm/arith.h"
#include "comm/font.h"
#include "comm/log.h"
#include "comm/shape.h"
#include "comm/text.h"
#include "comm/text_surface.h"
#include "menu/core/item.h"
#include "menu/render/value.h"
#include "osd_menu.h"

static constexpr float c_f32ValueRight = 0.95f; // of W
static constexpr float c_f32ValueShare = 0.5f;  // of the list's frame

tagITEM_NODE_S osdRowOfText(const OSD_TEXT& acText, tagITEM_LEVEL_E enLevel, tagITEM_ATTR_E enAttr)
{
    tagITEM_NODE_S stRow = {};
    stRow.enCtx = NAME;
    stRow.enLevel = enLevel;
    stRow.enAttr = enAttr;
    osdTextSetField(stRow.acItemName, acText);
    return stRow;
}

bool osdRowBright(tagITEM_NODE_S* pstItem, OSD_BOOL bSelected)
{
    return bSelected == 1 && !osdItemSubSelected(pstItem);
}

TTF_Font* osdRowSkinFont(OSD_BOOL bSelected)
{
    return enMenuStyle == 1 && bSelected != 0 ? gstMenuMgr.pstSelectFont : gstMenuMgr.pstFont;
}

bool osdRowSetSize(int s32Size, const char* pcFunc) { return osdFontSetSize(gstMenuMgr.pstFont, s32Size, pcFunc); }

SDL_Rect osdRowMeasure(const tagITEM_NODE_S* pstItem) { return osdTextSize(gstMenuMgr.pstFont, pstItem->acItemName); }

static int osdRowLeft(const tagROW_GEOM_S& stGeom, const tagITEM_NODE_S* pstItem, int s32TxtW)
{
    const int s32MenuW = gstMenuMgr.stCanvas.stMenuRect.w;
    if (pstItem->enItemPos == ITEM_POS_CENTER) {
        return osdClampS32((int64_t{s32MenuW} - s32TxtW) / 2);
    }
    if (enMenuStyle == 0) {
        return osdTrunc((osdF32(pstItem->enLevel) * stGeom.f32Indent + stGeom.f32Left) * osdF32(s32MenuW));
    }
    return osdTrunc(osdF32(s32MenuW) * stGeom.f32Left);
}

static int osdRowTop(const tagROW_GEOM_S& stGeom, const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove, int s32TxtH)
{
    const float f32MenuH = osdF32(gstMenuMgr.stCanvas.stMenuRect.h);
    if (pstItem->enAttr == MSG_LINE) { // at the foot, wherever the list ended
        return osdTrunc(f32MenuH * stGeom.f32MsgFoot - osdF32(s32TxtH));
    }
    if (stAbove.y == 0) { // no row drawn yet
        return osdTrunc(osdF32(stAbove.h) + f32MenuH * stGeom.f32FirstGap);
    }
    const int s32Next = osdTrunc(osdF32(stAbove.y) + osdF32(stAbove.h) + f32MenuH * stGeom.f32NextGap);
    const int64_t s64Empty = pstItem->enAttr == CONFIRM_POP_BTN ? int64_t{s32TxtH} * stGeom.s32EmptyAboveBtn : 0;
    return osdClampS32(s32Next + s64Empty);
}

SDL_Rect osdRowLabel(const tagROW_GEOM_S& stGeom, const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove)
{
    SDL_Rect stLabel = osdRowMeasure(pstItem);
    stLabel.x = osdRowLeft(stGeom, pstItem, stLabel.w);
    stLabel.y = osdRowTop(stGeom, pstItem, stAbove, stLabel.h);
    return stLabel;
}

// The value column on the row of the label.
static SDL_Rect osdRowColumn(const tagROW_GEOM_S& stGeom, const SDL_Rect& stLabel)
{
    const float f32MenuW = osdF32(gstMenuMgr.stCanvas.stMenuRect.w);
    const int s32W = osdTrunc(f32MenuW * stGeom.f32ValueFrame * c_f32ValueShare);
    return {osdTrunc(f32MenuW * c_f32ValueRight - osdF32(s32W)), stLabel.y, s32W, stLabel.h};
}

OSD_SURFACE_PTR osdRowValueSurface(const tagROW_S& stRow, const tagROW_VALUE_S& stValue, const SDL_Rect& stColumn)
{
    return stRow.pstItem->enCtx == NAME_BAR_VAL
               ? osdBarSurface(osdRowWidget(stRow, stValue), stValue.stBar, stColumn)
               : osdTextLit(stRow.pstFont, stValue.acText, stRow.s32Size, stRow.bBright);
}

static int osdRowTextWidth(const char* pcText) { return osdTextWidth(gstMenuMgr.pstFont, pcText); }

// Left edge and width of the caret, under the character that is being edited.
static SDL_Rect osdRowCaret(const tagROW_GEOM_S& stGeom, int32_t s32Cursor, const tagROW_VALUE_S& stValue, int s32Left)
{
    const int32_t s32At = std::clamp<int32_t>(s32Cursor, 0, OSD_TEXT_LEN - 1);
    const char acDigit[2] = {stValue.acText[s32At], '\0'};
    SDL_Rect stCaret = {s32Left, 0, osdRowTextWidth(acDigit), 0};
    if (s32At > 0) {
        OSD_TEXT acBefore;
        memcpy(acBefore, stValue.acText, sizeof(acBefore));
        acBefore[s32At] = '\0';
        stCaret.x += osdRowTextWidth(acBefore);
    }
    stCaret.x += s32Cursor > stGeom.s32DotCursor ? osdRowTextWidth(".") : 0;
    return stCaret;
}

static void osdRowCaretDraw(const tagROW_GEOM_S& stGeom, SDL_Rect stCaret, const SDL_Rect& stColumn)
{
    const float f32Gap = osdF32(gstMenuMgr.stCanvas.stMenuRect.h) * stGeom.f32NextGap;
    stCaret.y = osdTrunc(osdF32(osdClampS32(int64_t{stColumn.y} + stColumn.h)) + f32Gap / 3.0f);
    stCaret.h = osdTrunc(f32Gap / stGeom.f32CaretPart);
    osdShapeLine(gstMenuMgr.pstSurface, stCaret); // a failed fill is ignored
}

void osdRowDrawValue(const tagROW_GEOM_S& stGeom, const tagROW_S& stRow, OSD_VALUE_FUNC pfnSurface)
{
    tagITEM_NODE_S* pstItem = stRow.pstItem;
    const SDL_Rect stColumn = osdRowColumn(stGeom, stRow.stLabel);
    tagROW_VALUE_S stValue = {};
    stValue.stBar.s32Count = 1; // a text has no place on a bar: the block stands at the left end
    osdValueShown(pstItem, stValue.acText, &stValue.stBar.s32Index, &stValue.stBar.s32Count); // empty on failure
    const OSD_SURFACE_PTR pstValue = pfnSurface(stRow, stValue, stColumn);
    if (pstItem->enCtx == NAME_IP_VAL && pstItem->bEditing == 1) {
        osdRowCaretDraw(stGeom, osdRowCaret(stGeom, pstItem->s32EditCursor, stValue, stColumn.x), stColumn);
    }
    if (pstValue != nullptr) {
        osdRowPut(pstValue.get(), stColumn);
    }
}

void osdRowPut(SDL_Surface* pstSrc, const SDL_Rect& stDst)
{
    SDL_Rect stPlace = osdRectInRange(stDst);
    (void)SDL_UpperBlit(pstSrc, nullptr, gstMenuMgr.pstSurface, &stPlace); // a missing source is no failure
}

bool osdRowPlace(const tagROW_GEOM_S& stGeom, const SDL_Rect& stAbove, const char* pcFunc, tagROW_S* pstRow)
{
    (void)TTF_SetFontSize(gstMenuMgr.pstFont, pstRow->s32Size); // the bold font's answer counts for both
    if (!osdFontSetSize(gstMenuMgr.pstSelectFont, pstRow->s32Size, pcFunc)) {
        return false;
    }
    pstRow->stLabel = osdRowLabel(stGeom, pstRow->pstItem, stAbove);
    return true;
}

bool osdRowDraw(const tagROW_GEOM_S& stGeom, const tagROW_S& stRow, OSD_SURFACE_PTR pstLabel, const char* pcFunc,
                SDL_Rect* pstLayoutCursor)
{
    if (pstLabel == nullptr) {
        osdTrace("%s %d failed, pstItemNode->acItemIndex = %s\n", pcFunc, __LINE__, stRow.pstItem->acItemIndex);
        return false;
    }
    osdRowPut(pstLabel.get(), stRow.stLabel);
    if (osdItemHasValue(stRow.pstItem)) {
        osdRowDrawValue(stGeom, stRow, osdRowValueSurface);
    }
    osdRowEnd(stRow.stLabel, pstLayoutCursor);
    return true;
}

void osdRowEnd(const SDL_Rect& stLabel, SDL_Rect* pstLayoutCursor)
{
    pstLayoutCursor->y = stLabel.y;
    pstLayoutCursor->h = stLabel.h;
}

void osdRowSubItems(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_ROW_FUNC pfnDraw)
{
    if (osdItemHasSubItems(pstItem)) {
        for (tagITEM_NODE_S* pstSub : osdItems(&pstItem->astSubList[pstItem->s32CurIdx])) {
            pfnDraw(pstSub, pstLayoutCursor, pstSub->bActive);
        }
    }
}
