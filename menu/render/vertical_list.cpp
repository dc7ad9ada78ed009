// The list of layout "vertical_align". Fractions of the menu's width W and height H:
//
//     0.01 W                       0.95 W - vw            0.95 W
//     |                            |                      |
//     |Title                                              |   0.01 H below the top
//     | Label                      |value or bar          |   rows 0.02 H apart, one more 0.01 W to the right a level
//     |  Label of a sub-item       |value                 |   vw = 0.89 W / 2
//     |                                                   |
//     | Message line                                      |   foot at 0.95 H
#include "menu/render/vertical_list.h"

#include <utility>

#include "comm/arith.h"
#include "comm/log.h"
#include "comm/text_surface.h"
#include "menu/render/list.h"
#include "osd_menu.h"

static constexpr tagROW_GEOM_S c_stVerticalGeom = {
    /* f32Left */ 0.01f,      /* f32Indent */ 0.01f,     /* f32FirstGap */ 0.01f, /* f32NextGap */ 0.02f,
    /* f32MsgFoot */ 0.95f,   /* f32ValueFrame */ 0.89f, /* f32CaretPart */ 3.0f, /* s32DotCursor */ 5,
    /* s32EmptyAboveBtn */ 1,
};
static constexpr int c_s32PlainSize = 25; // pixels on the base 1920 by 1080, styles other than 0
static constexpr int c_s32LevelSize = 4;  // style 0: this times (8 - level)

static int osdVerticalSize(tagITEM_LEVEL_E enLevel)
{
    const int s32Base = enMenuStyle == 0 ? osdClampS32((8 - int64_t{enLevel}) * c_s32LevelSize) : c_s32PlainSize;
    return osdTrunc(osdF32(s32Base) * gstMenuMgr.f32Scale);
}

bool osdVerticalRow(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    static constexpr const char* pcFunc = OSD_NAME(OSD_MENU_RenderVerticalItem);
    tagROW_S stRow = {
        pstItem, osdRowSkinFont(bSelected), osdVerticalSize(pstItem->enLevel), osdRowBright(pstItem, bSelected), {}};
    if (!osdRowPlace(c_stVerticalGeom, *pstLayoutCursor, pcFunc, &stRow)) {
        return false;
    }
    TTF_Font* pstFont = pstItem->enCtx == NAME ? gstMenuMgr.pstSelectFont : stRow.pstFont;
    OSD_SURFACE_PTR pstLabel = osdTextLit(pstFont, pstItem->acItemName, stRow.s32Size, stRow.bBright);
    if (!osdRowDraw(c_stVerticalGeom, stRow, std::move(pstLabel), pcFunc, pstLayoutCursor)) {
        return false;
    }
    osdRowSubItems(pstItem, pstLayoutCursor, osdVerticalRow);
    return true;
}

void osdVerticalPage(tagPAGE_NODE_S* pstPage)
{
    osdListDraw(pstPage, {osdVerticalRow, nullptr, true});
    osdListMessage();
}
