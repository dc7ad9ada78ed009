// The grid of layout "icon". Fractions of the menu's width W and height H, and of a cell; n cells in a row, room for n
// rows:
//
//       0.05 W    0.1 W between cells
//       +--------+         +--------+      first row 0.02 H below the top, rows 0.05 H apart
//       |picture |         |        |      upper 0.7 of the cell, over its whole width
//       |        |         |        |
//       |caption |         |        |      0.025 of the cell below the picture
//       |========|         |        |      bar under the caption of the selected cell
//       +--------+         +--------+
#include "menu/render/icon_grid.h"

#include "comm/arith.h"
#include "comm/image.h"
#include "comm/log.h"
#include "comm/shape.h"
#include "comm/text.h"
#include "comm/text_surface.h"
#include "menu/core/item_walk.h"
#include "menu/core/words.h"
#include "menu/render/row.h"
#include "osd_menu.h"
#include "platform/config_call.h"

static constexpr float c_f32MarginX = 0.1f;  // of W, both margins together
static constexpr float c_f32MarginY = 0.04f; // of H
static constexpr float c_f32GapX = 0.1f;     // of W
static constexpr float c_f32GapY = 0.05f;    // of H
static constexpr float c_f32Left = 0.05f;    // of W
static constexpr float c_f32Top = 0.02f;     // of H

static constexpr float c_f32PictureH = 0.7f;       // of the cell's height, as all below
static constexpr float c_f32CaptionGap = 0.025f;   // between picture and caption
static constexpr float c_f32BarDrop = 0.22500001f; // 0x3E666667, one step above the float nearest to 0.225
static constexpr float c_f32BarH = 0.02f;
static constexpr Uint32 c_u32BarPixel = 0xFFFFFFFF; // opaque white in every format

static constexpr float c_f32EnglishSize = 28.0f; // pixels on the base 1920 by 1080
static constexpr float c_f32OtherSize = 32.0f;

// n cells share what the margins and the gaps between them leave.
static int osdIconCell(int s32Whole, float f32Margin, float f32Gap, int32_t s32Cnt)
{
    if (s32Cnt == 0) {
        return 0;
    }
    const float f32Whole = osdF32(s32Whole);
    const int s32Inside = osdTrunc(f32Whole - f32Whole * f32Margin);
    const float f32Gaps = f32Whole * (osdF32(osdClampS32(int64_t{s32Cnt} - 1)) * f32Gap);
    return osdClampS32(int64_t{osdTrunc(osdF32(s32Inside) - f32Gaps)} / s32Cnt);
}

// The next cell's place along one axis.
static int osdIconNext(int s32Whole, float f32Gap, int s32At, int s32Size)
{
    return osdTrunc(osdF32(s32Whole) * f32Gap + osdF32(osdClampS32(int64_t{s32At} + s32Size)));
}

SDL_Rect osdIconFirst(const SDL_Rect& stMenu, int32_t s32PerLine)
{
    return {osdTrunc(osdF32(stMenu.w) * c_f32Left), osdTrunc(osdF32(stMenu.h) * c_f32Top),
            osdIconCell(stMenu.w, c_f32MarginX, c_f32GapX, s32PerLine),
            osdIconCell(stMenu.h, c_f32MarginY, c_f32GapY, s32PerLine)};
}

void osdIconPage(tagPAGE_NODE_S* pstPage)
{
    const SDL_Rect& stMenu = gstMenuMgr.stCanvas.stMenuRect;
    const int32_t s32PerLine = pstPage->s32CountPerLine;
    SDL_Rect stCell = osdIconFirst(stMenu, s32PerLine);
    const int s32Left = stCell.x;
    int32_t s32Pos = 0;
    for (tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        pstItem->stRect = stCell;
        osdIconCellDraw(pstItem, s32Pos == pstPage->s32SelIdx ? 1 : 0); // the others go on
        s32Pos++;
        if (s32PerLine != 0 && s32Pos % s32PerLine == 0) {
            stCell.x = s32Left;
            stCell.y = osdIconNext(stMenu.h, c_f32GapY, stCell.y, stCell.h);
        } else {
            stCell.x = osdIconNext(stMenu.w, c_f32GapX, stCell.x, stCell.w);
        }
    }
}

static int osdIconSize()
{
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage)) {
        osdTrace("%s %d Get Language failed\n", OSD_PLACE(OSD_MENU_RenderIconText));
        acLanguage[0] = '\0';
    }
    const float f32Base = osdTextEqual(acLanguage, OSD_LANGUAGE_EN) ? c_f32EnglishSize : c_f32OtherSize;
    return osdTrunc(f32Base * gstMenuMgr.f32Scale);
}

struct tagICON_S {
    SDL_Rect stPicture;
    SDL_Rect stCaption;
    SDL_Rect stBar;
};

static tagICON_S osdIconPlace(const tagITEM_NODE_S* pstItem)
{
    const SDL_Rect& stCell = pstItem->stRect;
    const float f32H = osdF32(stCell.h);
    tagICON_S stIcon = {};
    stIcon.stPicture = {stCell.x, stCell.y, stCell.w, osdTrunc(f32H * c_f32PictureH)};
    SDL_Rect& stCaption = stIcon.stCaption;
    stCaption = osdRowMeasure(pstItem);
    stCaption.x = osdClampS32(stCell.x + (int64_t{stCell.w} - stCaption.w) / 2);
    const int s32Foot = osdClampS32(int64_t{stCell.y} + stIcon.stPicture.h);
    stCaption.y = osdTrunc(f32H * c_f32CaptionGap + osdF32(s32Foot));
    stIcon.stBar = {stCaption.x, osdTrunc(f32H * c_f32BarDrop + osdF32(stCaption.y)), stCaption.w,
                    osdTrunc(f32H * c_f32BarH)};
    return stIcon;
}

static bool osdIconDraw(const tagITEM_NODE_S* pstItem, const tagICON_S& stIcon, int s32Size, OSD_BOOL bSelected)
{
    const bool bMarked = enMenuStyle == 1 && bSelected == 1; // this skin has a picture and a font for it
    const OSD_SURFACE_PTR pstPicture =
        osdImageGet(bMarked ? pstItem->acSelectPic : pstItem->acPic, stIcon.stPicture.w, stIcon.stPicture.h);
    if (pstPicture == nullptr) {
        OSD_TRACE_FAILED(OSD_MENU_RenderIconText);
        return false;
    }
    osdRowPut(pstPicture.get(), stIcon.stPicture);
    TTF_Font* pstFont = bMarked ? gstMenuMgr.pstSelectFont : gstMenuMgr.pstFont;
    const OSD_SURFACE_PTR pstCaption = osdTextLit(pstFont, pstItem->acItemName, s32Size, 0);
    if (pstCaption == nullptr) {
        OSD_TRACE_FAILED(OSD_MENU_RenderIconText);
        return false;
    }
    osdRowPut(pstCaption.get(), stIcon.stCaption);
    if (bSelected == 1) {
        osdShapeFill(gstMenuMgr.pstSurface, stIcon.stBar, c_u32BarPixel); // a failed fill is ignored
    }
    return true;
}

bool osdIconCellDraw(const tagITEM_NODE_S* pstItem, OSD_BOOL bSelected)
{
    const int s32Size = osdIconSize();
    return osdRowSetSize(s32Size, OSD_NAME(OSD_MENU_RenderIconText)) &&
           osdIconDraw(pstItem, osdIconPlace(pstItem), s32Size, bSelected);
}
