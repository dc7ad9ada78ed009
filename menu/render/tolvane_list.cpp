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
#include "menu/render/tolvane_list.h"

#include <algorithm>
#include <array>

#include "comm/arith.h"
#include "comm/arrow.h"
#include "comm/font.h"
#include "comm/image.h"
#include "comm/log.h"
#include "comm/picture_names.h"
#include "comm/shape.h"
#include "comm/text.h"
#include "comm/text_surface.h"
#include "menu/core/flat_list.h"
#include "menu/core/item.h"
#include "menu/core/words.h"
#include "menu/render/list.h"
#include "osd_menu.h"
#include "platform/config_call.h"

static constexpr tagROW_GEOM_S c_stTolvaneGeom = {
    /* f32Left */ 0.05f,      /* f32Indent */ 0.01f,
    /* f32FirstGap */ 0.01f,  /* f32NextGap */ 0.02f,
    /* f32MsgFoot */ 0.88f,   /* f32ValueFrame */ 0.7f,
    /* f32CaretPart */ 3.0f,  /* s32DotCursor */ OSD_TEXT_LEN,
    /* s32EmptyAboveBtn */ 1,
};
static constexpr float c_f32TextSize = 0.03f; // of H

static constexpr float c_f32RuleX = 0.05f; // of W
static constexpr float c_f32RuleY = 0.9f;  // of H
static constexpr float c_f32RuleW = 0.9f;  // of W
static constexpr float c_f32RuleH = 0.01f; // of H

static constexpr float c_f32HintGap = 0.05f;   // of W
static constexpr float c_f32HintY = 0.93f;     // of H
static constexpr float c_f32HintW = 0.15f;     // of W
static constexpr float c_f32HintH = 0.05f;     // of H
static constexpr float c_f32HintWideW = 0.29f; // of W

struct tagHINT_S {
    const char* pcPic;
    bool bWide;
};
static constexpr tagHINT_S c_stHintMove = {OSD_PIC_NAV_MOVE, false};
static constexpr tagHINT_S c_stHintEnter = {OSD_PIC_NAV_ENTER, false};
static constexpr tagHINT_S c_stHintSet = {OSD_PIC_NAV_SET, false};
static constexpr tagHINT_S c_stHintChange = {OSD_PIC_NAV_CHANGE_VALUE, true};
static constexpr tagHINT_S c_stHintNone = {nullptr, false};

// By tagITEM_PIC_TYPE_E.
static constexpr std::array<std::array<tagHINT_S, 3>, 5> c_aastHint = {{{{c_stHintMove, c_stHintEnter, c_stHintNone}},
                                                                        {{c_stHintMove, c_stHintChange, c_stHintNone}},
                                                                        {{c_stHintMove, c_stHintEnter, c_stHintChange}},
                                                                        {{c_stHintMove, c_stHintSet, c_stHintNone}},
                                                                        {{c_stHintMove, c_stHintNone, c_stHintNone}}}};

// Traditional Chinese has a font of its own, open for one row. Null for every other language, and where no font can be
// had: the regular font serves then. False without a language.
static bool osdTolvaneOwnFont(OSD_FONT_PTR* pstFont)
{
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage)) {
        OSD_TRACE_FAILED(OSD_MENU_RenderVerticalTolvaneItem);
        return false;
    }
    if (osdTextEqual(acLanguage, OSD_LANGUAGE_TC)) {
        *pstFont = osdFontTraditionalChinese();
    }
    return true;
}

static int osdTolvaneSize()
{
    const int s32Base = osdTrunc(osdF32(gstMenuMgr.stCanvas.stMenuRect.h) * c_f32TextSize);
    return osdTrunc(osdF32(s32Base) * gstMenuMgr.f32Scale);
}

static void osdTolvaneArrow(const SDL_Rect& stLabel)
{
    const SDL_Rect stArrow = osdArrowBeside(gstMenuMgr.stCanvas.stMenuRect, stLabel);
    const OSD_SURFACE_PTR pstArrow = osdImageGet(OSD_PIC_NAV_ARROW, stArrow.w, stArrow.h);
    if (pstArrow == nullptr) {
        OSD_LOG(OSD_MENU_RenderVerticalTolvaneItem, OSD_LOG_LEVEL_ERR, "Load nav_arrow.bmp failed");
        return;
    }
    osdImagePut(pstArrow.get(), gstMenuMgr.pstSurface, stArrow.x, stArrow.y);
}

static OSD_SURFACE_PTR osdTolvaneLabel(const tagROW_S& stRow)
{
    const tagITEM_NODE_S* pstItem = stRow.pstItem;
    const bool bAlone = pstItem->enCtx == NAME;
    TTF_Font* pstFont = bAlone ? gstMenuMgr.pstSelectFont : stRow.pstFont;
    return bAlone && pstItem->enLevel == ITEM_LEVEL_TOP
               ? osdTextAmber(pstFont, pstItem->acItemName, stRow.s32Size)
               : osdTextLit(pstFont, pstItem->acItemName, stRow.s32Size, stRow.bBright);
}

// One row without its sub-items: its own font is closed before they open theirs.
static bool osdTolvaneOneRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    static constexpr const char* pcFunc = OSD_NAME(OSD_MENU_RenderVerticalTolvaneItem);
    OSD_FONT_PTR pstOwnFont;
    if (!osdTolvaneOwnFont(&pstOwnFont)) {
        return false;
    }
    TTF_Font* pstFont = pstOwnFont != nullptr ? pstOwnFont.get() : gstMenuMgr.pstFont;
    tagROW_S stRow = {pstItem, pstFont, osdTolvaneSize(), osdRowBright(pstItem, bSelected), {}};
    if (!osdRowPlace(c_stTolvaneGeom, *pstLayoutCursor, pcFunc, &stRow)) {
        return false;
    }
    if (bSelected == 1 && pstItem->enAttr != MSG_LINE) {
        osdTolvaneArrow(stRow.stLabel);
    }
    return osdRowDraw(c_stTolvaneGeom, stRow, osdTolvaneLabel(stRow), pcFunc, pstLayoutCursor);
}

bool osdTolvaneRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    if (!osdTolvaneOneRow(pstItem, pstLayoutCursor, bSelected)) {
        return false;
    }
    osdRowSubItems(pstItem, pstLayoutCursor, osdTolvaneRow);
    return true;
}

static void osdTolvaneRule()
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const SDL_Rect stRule = {osdTrunc(osdF32(stMenu.w) * c_f32RuleX + osdF32(stMenu.x)),
                             osdTrunc(osdF32(stMenu.h) * c_f32RuleY + osdF32(stMenu.y)),
                             osdTrunc(osdF32(stMenu.w) * c_f32RuleW), osdTrunc(osdF32(stMenu.h) * c_f32RuleH)};
    osdShapeFill(gstMenuMgr.pstSurface, stRule, osdShapePixel(gstMenuMgr.pstSurface, OSD_COLOR_AMBER));
}

bool osdTolvaneHints(const tagITEM_NODE_S* pstItem)
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const float f32Gap = osdF32(stMenu.w) * c_f32HintGap;
    SDL_Rect stPlace = {osdTrunc(osdF32(stMenu.x) + f32Gap), osdTrunc(osdF32(stMenu.h) * c_f32HintY + osdF32(stMenu.y)),
                        osdTrunc(osdF32(stMenu.w) * c_f32HintW), osdTrunc(osdF32(stMenu.h) * c_f32HintH)};
    const auto u32PicType = static_cast<uint32_t>(pstItem->enPicType);
    for (const tagHINT_S& stHint : c_aastHint[std::min<uint32_t>(u32PicType, PIC_TYPE_NONE)]) {
        if (stHint.pcPic == nullptr) {
            break;
        }
        if (stHint.bWide) {
            stPlace.w = osdTrunc(osdF32(stMenu.w) * c_f32HintWideW);
        }
        const OSD_SURFACE_PTR pstHint = osdImageGet(stHint.pcPic, stPlace.w, stPlace.h);
        if (pstHint == nullptr) {
            OSD_TRACE_FAILED(OSD_MENU_RenderBelowIcon);
            return false;
        }
        stPlace = osdImagePutClipped(pstHint.get(), gstMenuMgr.pstSurface, stPlace.x, stPlace.y);
        stPlace.x = osdTrunc(osdF32(stPlace.w) + f32Gap + osdF32(stPlace.x));
    }
    return true;
}

void osdTolvanePage(tagPAGE_NODE_S* pstPage)
{
    osdListDraw(pstPage, {osdTolvaneRow, nullptr, false});
    osdTolvaneRule(); // a failed fill is ignored
    const tagITEM_NODE_S* pstSelected = osdPageSelected(pstPage);
    if (pstSelected != nullptr) {
        osdTolvaneHints(pstSelected); // hints that are missing leave the row empty
    }
    osdListMessage();
}
