// The renderers' C functions: each hands over to the C++ behind it.
#include "menu/core/network.h"
#include "menu/render/icon_grid.h"
#include "menu/render/list.h"
#include "menu/render/paged_list.h"
#include "menu/render/popup.h"
#include "menu/render/tolvane_list.h"
#include "menu/render/value.h"
#include "menu/render/vertical_list.h"
#include "osd_page.h"

int OSD_MENU_RenderIconCanvas(tagPAGE_NODE_S* pstPage)
{
    osdIconPage(pstPage);
    return 0;
}

int OSD_MENU_RenderVerticalCanvas(tagPAGE_NODE_S* pstPage)
{
    osdVerticalPage(pstPage);
    return 0;
}

int OSD_MENU_RenderHorizontalCanvas(tagPAGE_NODE_S* pstPage)
{
    osdPopupPage(pstPage);
    return 0;
}

int OSD_MENU_RenderVerticalSpecialCanvas(tagPAGE_NODE_S* pstPage)
{
    osdTolvanePage(pstPage);
    return 0;
}

int OSD_MENU_RenderVerticalCanvasWithKETH(tagPAGE_NODE_S* pstPage)
{
    osdPagedPage(pstPage);
    return 0;
}

int OSD_MENU_RenderHorizontalCanvasWithKETH(tagPAGE_NODE_S* pstPage)
{
    osdPopupMsgPage(pstPage);
    return 0;
}

int OSD_MENU_RenderVerticalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdVerticalRow(pstItemNode, pstLayoutCursor, bSelected) ? 0 : -1;
}

int OSD_MENU_RenderVerticalTolvaneItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdTolvaneRow(pstItemNode, pstLayoutCursor, bSelected) ? 0 : -1;
}

int OSD_MENU_RenderVerticalKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPagedRow(pstItemNode, pstLayoutCursor, bSelected) ? 0 : -1;
}

int OSD_MENU_RenderHorizontalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPopupItem(pstItemNode, pstLayoutCursor, bSelected) ? 0 : -1;
}

int OSD_MENU_RenderHorizontalItemWithKETH(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected)
{
    return osdPopupMsgItem(pstItemNode, pstLayoutCursor, bSelected) ? 0 : -1;
}

int OSD_MENU_RenderIconText(tagITEM_NODE_S* pstItemNode, OSD_BOOL bSelected)
{
    return osdIconCellDraw(pstItemNode, bSelected) ? 0 : -1;
}

int OSD_MENU_RenderBelowIcon(tagITEM_NODE_S* pstItemNode) { return osdTolvaneHints(pstItemNode) ? 0 : -1; }

int osdMenuDrawTurnArrow(tagPAGE_TURN_S* pstTurn)
{
    osdPagedTurnArrow(*pstTurn);
    return 0;
}

int OSD_MENU_RenderTitleKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL /*bSelected*/)
{
    return osdPagedTitle(pstItemNode, pstLayoutCursor) ? 0 : -1;
}

int OSD_MENU_DrawItemName(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, int s32FontSize, OSD_BOOL bBright,
                          SDL_Rect* pstNameRect, SDL_Surface** ppstSurface)
{
    return osdHandOver(osdPagedName(pstItemNode, pstLayoutCursor, s32FontSize, bBright, pstNameRect), ppstSurface);
}

int OSD_MENU_RenderTxt(tagITEM_NODE_S* pstItemNode, SDL_Rect stRect, int s32FontSize, SDL_Surface** ppstSurface,
                       OSD_BOOL bBright)
{
    return osdHandOver(osdPagedText(pstItemNode, stRect, s32FontSize, bBright), ppstSurface);
}

int OSD_MENU_FillData2Canvas(SDL_Surface* pstSrc, SDL_Rect stDst)
{
    osdRowPut(pstSrc, stDst);
    return 0;
}

int OSD_MENU_HandleKeyMsg(SDL_Rect /*stLayoutCursor*/)
{
    osdListMessage();
    return 0;
}

int osdMenuGetItemValInfo(tagITEM_NODE_S* pstItemNode, char* pcValue, int* ps32Pos, int* ps32Cnt)
{
    return osdValueShown(pstItemNode, pcValue, ps32Pos, ps32Cnt) ? 0 : -1;
}

OSD_BOOL osdMenuJudgeNetWorkofDhcp(tagITEM_NODE_S* pstItemNode) { return osdNetworkEndsPage(pstItemNode) ? 1 : 0; }
