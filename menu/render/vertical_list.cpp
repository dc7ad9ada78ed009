// The list of layout "vertical_align". Fractions of the menu's width W and height H:
//
//     0.01 W                       0.95 W - vw            0.95 W
//     |                            |                      |
//     |Title                                              |   0.01 H below the top
//     | Label                      |value or bar          |   rows 0.02 H apart, one more 0.01 W to the right a level
//     |  Label of a sub-item       |value                 |   vw = 0.89 W / 2
//     |                                                   |
//     | Message line                                      |   foot at 0.95 H
#include "comm/arith.h"
#include "comm/log.h"
#include "menu/core/flat_list.h"
#include "menu/core/value_bind.h"
#include "menu/render/row.h"
#include "osd_comm.h"
#include "osd_page.h"

static constexpr tagROW_GEOM_S gs_stVerticalGeom = {
    /* f32Left */ 0.01f,      /* f32Indent */ 0.01f,     /* f32FirstGap */ 0.01f, /* f32NextGap */ 0.02f,
    /* f32MsgFoot */ 0.95f,   /* f32ValueFrame */ 0.89f, /* f32CaretPart */ 3.0f, /* s32DotCursor */ 5,
    /* s32EmptyAboveBtn */ 1,
};
static constexpr int gs_s32PlainSize = 25; // pixels on the base 1920 by 1080, styles other than 0
static constexpr int gs_s32LevelSize = 4;  // style 0: this times (8 - level)

static int osdVerticalSize(tagITEM_LEVEL_E enLevel)
{
    const int s32Base = enMenuStyle == 0 ? osdClampS32((8 - int64_t{enLevel}) * gs_s32LevelSize) : gs_s32PlainSize;
    return osdTrunc(osdF32(s32Base) * gstMenuMgr.f32Scale);
}

static int osdVerticalMeasure(tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove, OSD_BOOL bSelected, tagROW_S* pstRow)
{
    pstRow->pstItem = pstItem;
    pstRow->bBright = osdRowBright(pstItem, bSelected);
    pstRow->pstFont = osdRowSkinFont(bSelected);
    pstRow->s32Size = osdVerticalSize(pstItem->enLevel);
    if (osdRowSetBothSizes(pstRow->s32Size) != 0) {
        return -1;
    }
    pstRow->stLabel = osdRowLabel(gs_stVerticalGeom, pstItem, stAbove);
    return 0;
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
        osdRowDrawValue(gs_stVerticalGeom, stRow, osdRowValueSurface);
    }
    return 0;
}

int OSD_MENU_RenderVerticalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    tagROW_S stRow = {};
    if (osdVerticalMeasure(pstItemNode, *pstLayoutCursor, bSelected, &stRow) != 0 || osdVerticalDrawRow(stRow) != 0) {
        return -1;
    }
    osdRowEnd(stRow.stLabel, pstLayoutCursor);
    osdRowSubItems(pstItemNode, pstLayoutCursor, OSD_MENU_RenderVerticalItem);
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
