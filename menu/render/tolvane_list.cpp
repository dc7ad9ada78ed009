// The list of layout "vertical_tolvane_align". Fractions of the menu's width W and height H, from the canvas's corner;
// the rule and the hints from the menu's:
//
//        0.05 W                    0.95 W - vw            0.95 W
//        |                         |                      |
//        |Title, amber                                    |   0.01 H below the top
//      > | Label                   |value or bar          |   rows 0.02 H apart; ">" is a bitmap; vw = 0.7 W / 2
//        |  Label of a sub-item    |value                 |
//        | Message line                                   |   foot at 0.88 H
//        ==================================================   rule at 0.9 H, amber
//        [hint] [hint] [hint]                                 at 0.93 H, 0.05 W apart
#include <algorithm>
#include <array>

#include "comm/arith.h"
#include "comm/arrow.h"
#include "comm/color.h"
#include "comm/image.h"
#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/value_bind.h"
#include "menu/core/words.h"
#include "menu/render/row.h"
#include "osd_comm.h"
#include "osd_page.h"
#include "platform/config_call.h"

static constexpr tagROW_GEOM_S gs_stTolvaneGeom = {
    /* f32Left */ 0.05f,      /* f32Indent */ 0.01f,
    /* f32FirstGap */ 0.01f,  /* f32NextGap */ 0.02f,
    /* f32MsgFoot */ 0.88f,   /* f32ValueFrame */ 0.7f,
    /* f32CaretPart */ 3.0f,  /* s32DotCursor */ OSD_TEXT_LEN,
    /* s32EmptyAboveBtn */ 1,
};
static constexpr float gs_f32TextSize = 0.03f; // of H

static constexpr float gs_f32RuleX = 0.05f; // of W
static constexpr float gs_f32RuleY = 0.9f;  // of H
static constexpr float gs_f32RuleW = 0.9f;  // of W
static constexpr float gs_f32RuleH = 0.01f; // of H

static constexpr float gs_f32HintGap = 0.05f;   // of W
static constexpr float gs_f32HintY = 0.93f;     // of H
static constexpr float gs_f32HintW = 0.15f;     // of W
static constexpr float gs_f32HintH = 0.05f;     // of H
static constexpr float gs_f32HintWideW = 0.29f; // of W

struct tagHINT_S {
    const char* pcPic;
    bool bWide;
};
static constexpr tagHINT_S gs_stHintMove = {"nav_move", false};
static constexpr tagHINT_S gs_stHintEnter = {"nav_enter", false};
static constexpr tagHINT_S gs_stHintSet = {"nav_set", false};
static constexpr tagHINT_S gs_stHintChange = {"nav_change_value", true};
static constexpr tagHINT_S gs_stHintNone = {nullptr, false};

static constexpr std::array<std::array<tagHINT_S, 3>, 5> gs_aastHint = {
    {// by tagITEM_PIC_TYPE_E
     {{gs_stHintMove, gs_stHintEnter, gs_stHintNone}},
     {{gs_stHintMove, gs_stHintChange, gs_stHintNone}},
     {{gs_stHintMove, gs_stHintEnter, gs_stHintChange}},
     {{gs_stHintMove, gs_stHintSet, gs_stHintNone}},
     {{gs_stHintMove, gs_stHintNone, gs_stHintNone}}}};

// Traditional Chinese has a font of its own, open for one row. Null for every other language, and where no font can be
// had: the regular font serves then.
static int osdTolvaneOwnFont(OSD_FONT_PTR* pstFont)
{
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    if (osdTextEqual(acLanguage, OSD_LANGUAGE_TC)) {
        pstFont->reset(OSD_COMM_OpenTraditionalChineseTtfFont());
    }
    return 0;
}

static int osdTolvaneMeasure(tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove, OSD_BOOL bSelected, tagROW_S* pstRow)
{
    const int s32Base = osdTrunc(osdF32(gstMenuMgr.stCanvas.stMenuRect.h) * gs_f32TextSize);
    pstRow->pstItem = pstItem;
    pstRow->bBright = osdRowBright(pstItem, bSelected);
    pstRow->s32Size = osdTrunc(osdF32(s32Base) * gstMenuMgr.f32Scale);
    if (osdRowSetBothSizes(pstRow->s32Size) != 0) {
        return -1;
    }
    pstRow->stLabel = osdRowLabel(gs_stTolvaneGeom, pstItem, stAbove);
    return 0;
}

static void osdTolvaneArrow(const SDL_Rect& stLabel)
{
    const SDL_Rect stArrow = osdArrowBeside(gstMenuMgr.stCanvas.stMenuRect, stLabel);
    const OSD_SURFACE_PTR pstArrow = osdImageGet("nav_arrow", stArrow.w, stArrow.h);
    if (pstArrow == nullptr) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, "Load nav_arrow.bmp failed");
        return;
    }
    (void)osdImagePut(pstArrow.get(), gstMenuMgr.pstSurface, stArrow.x, stArrow.y);
}

static OSD_SURFACE_PTR osdTolvaneLabel(const tagROW_S& stRow)
{
    tagITEM_NODE_S* pstItem = stRow.pstItem;
    const bool bAlone = pstItem->enCtx == NAME;
    TTF_Font* pstFont = bAlone ? gstMenuMgr.pstSelectFont : stRow.pstFont;
    const auto pfnText =
        bAlone && pstItem->enLevel == ITEM_LEVEL_TOP ? OSD_COMM_GetTolvaneTxtSurface : OSD_COMM_GetTxtSurface;
    SDL_Surface* pstLabel = nullptr;
    (void)pfnText(pstFont, pstItem->acItemName, stRow.s32Size, stRow.bBright, &pstLabel); // null on failure
    return OSD_SURFACE_PTR(pstLabel);
}

static int osdTolvaneDrawRow(const tagROW_S& stRow, OSD_BOOL bSelected)
{
    tagITEM_NODE_S* pstItem = stRow.pstItem;
    if (bSelected == 1 && pstItem->enAttr != MSG_LINE) {
        osdTolvaneArrow(stRow.stLabel);
    }
    const OSD_SURFACE_PTR pstLabel = osdTolvaneLabel(stRow);
    if (pstLabel == nullptr) {
        osdTrace("%s %d failed, pstItemNode->acItemIndex = %s\n", OSD_PLACE, pstItem->acItemIndex);
        return -1;
    }
    (void)OSD_MENU_FillData2Canvas(pstLabel.get(), stRow.stLabel); // always 0
    if (osdContextHasValue(pstItem->enCtx)) {
        osdRowDrawValue(gs_stTolvaneGeom, stRow, osdRowValueSurface);
    }
    return 0;
}

// One row without its sub-items: its own font is closed before they open theirs.
static int osdTolvaneRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    OSD_FONT_PTR pstOwnFont;
    tagROW_S stRow = {};
    if (osdTolvaneOwnFont(&pstOwnFont) != 0 || osdTolvaneMeasure(pstItem, *pstLayoutCursor, bSelected, &stRow) != 0) {
        return -1;
    }
    stRow.pstFont = pstOwnFont != nullptr ? pstOwnFont.get() : gstMenuMgr.pstFont;
    if (osdTolvaneDrawRow(stRow, bSelected) != 0) {
        return -1;
    }
    osdRowEnd(stRow.stLabel, pstLayoutCursor);
    return 0;
}

int OSD_MENU_RenderVerticalTolvaneItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    if (osdTolvaneRow(pstItemNode, pstLayoutCursor, bSelected) != 0) {
        return -1;
    }
    osdRowSubItems(pstItemNode, pstLayoutCursor, OSD_MENU_RenderVerticalTolvaneItem);
    return 0;
}

static void osdTolvaneRule()
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const SDL_Rect stRule =
        osdRectInRange({osdTrunc(osdF32(stMenu.w) * gs_f32RuleX + osdF32(stMenu.x)),
                        osdTrunc(osdF32(stMenu.h) * gs_f32RuleY + osdF32(stMenu.y)),
                        osdTrunc(osdF32(stMenu.w) * gs_f32RuleW), osdTrunc(osdF32(stMenu.h) * gs_f32RuleH)});
    const Uint32 u32Amber = SDL_MapRGBA(gstMenuMgr.pstSurface->format, OSD_COLOR_AMBER.r, OSD_COLOR_AMBER.g,
                                        OSD_COLOR_AMBER.b, OSD_COLOR_AMBER.a);
    (void)SDL_FillRect(gstMenuMgr.pstSurface, &stRule, u32Amber); // a page without rule is still a page
}

int OSD_MENU_RenderBelowIcon(tagITEM_NODE_S* pstItemNode)
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const float f32Gap = osdF32(stMenu.w) * gs_f32HintGap;
    SDL_Rect stPlace = {0, osdTrunc(osdF32(stMenu.h) * gs_f32HintY + osdF32(stMenu.y)), 0,
                        osdTrunc(osdF32(stMenu.h) * gs_f32HintH)};
    stPlace.x = osdTrunc(osdF32(stMenu.x) + f32Gap);
    stPlace.w = osdTrunc(osdF32(stMenu.w) * gs_f32HintW);
    const auto u32PicType = static_cast<uint32_t>(pstItemNode->enPicType);
    for (const tagHINT_S& stHint : gs_aastHint[std::min<uint32_t>(u32PicType, PIC_TYPE_NONE)]) {
        if (stHint.pcPic == nullptr) {
            break;
        }
        if (stHint.bWide) {
            stPlace.w = osdTrunc(osdF32(stMenu.w) * gs_f32HintWideW);
        }
        const OSD_SURFACE_PTR pstHint = osdImageGet(stHint.pcPic, stPlace.w, stPlace.h);
        if (pstHint == nullptr) {
            OSD_TRACE_FAILED();
            return -1;
        }
        stPlace = osdImagePut(pstHint.get(), gstMenuMgr.pstSurface, stPlace.x, stPlace.y);
        stPlace.x = osdTrunc(osdF32(stPlace.w) + f32Gap + osdF32(stPlace.x));
    }
    return 0;
}

int OSD_MENU_RenderVerticalSpecialCanvas(tagPAGE_NODE_S* pstPage)
{
    SDL_Rect stCursor = {};
    if (pstPage->bTitle == 1) {
        tagITEM_NODE_S stTitle = osdRowOfText(pstPage->acTitle, ITEM_LEVEL_TOP, TITLE_LINE);
        (void)OSD_MENU_RenderVerticalTolvaneItem(&stTitle, &stCursor, 0); // a failed row leaves the page to the others
    }
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        (void)OSD_MENU_RenderVerticalTolvaneItem(pstItem, &stCursor, pstItem->bActive);
    }
    osdTolvaneRule();
    tagITEM_NODE_S* pstSelected = osdMenuGetSelectedItem(pstPage);
    if (pstSelected != nullptr) {
        (void)OSD_MENU_RenderBelowIcon(pstSelected); // hints that are missing leave the row empty
    }
    return OSD_MENU_HandleKeyMsg(stCursor);
}
