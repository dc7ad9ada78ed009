/* The on-screen menu: start, drawing, pages, values. Compiles as C11 and as C++17.
 *
 * Holds for every function here, unless its own comment says otherwise:
 *   - int results are 0 on success and -1 on failure, with a line in the log.
 *   - Pointer arguments must not be null; texts are zero-terminated UTF-8 and stay the caller's.
 *   - One call at a time: the host serialises its calls. A call has drawn and shown its effect when it returns.
 *
 * Order of calls: OSD_MENU_InitOpensourceRes, OSD_MENU_InitSdkRes, Osd_GetVersionCallback, then keys and refreshes.
 * There is no teardown; canvas and fonts live as long as the process. */
#pragma once

#include <SDL.h>
#include <SDL_ttf.h>
#include <pthread.h>

#include "osd_canvas.h"
#include "osd_records.h"
#include "osd_types.h"

OSD_EXTERN_C_BEGIN

/* Place and size as fractions of the base rectangle, 0.0 to 1.0. */
typedef struct tagOSD_MENU_RECT_S {
    float f32X;
    float f32Y;
    float f32W;
    float f32H;
} tagOSD_MENU_RECT_S;

typedef struct tagOSD_MENU_CFG_S {
    tagOSD_MENU_RECT_S stMenuFrac; /* place and size of the menu */
    uint32_t enPixFmt;             /* 0 ARGB1555, 1 ARGB4444, 2 ARGB8888 */
    OSD_BOOL bSupport4K;           /* exactly 1: base 3840 by 2160, else 1920 by 1080 */
    uint32_t enMenuStyle;          /* skin, 0 to 2 */
} tagOSD_MENU_CFG_S;

/* Applies an item's value. Called on the key's thread with no lock held; the result is not read. May call every
 * function of the library, keys and refreshes too; the item is gone when its page is closed or built anew. */
typedef int (*OSD_BUSINESS_FUNC)(tagITEM_NODE_S*);

/* Maps a data zone to the parent key of a lookup; null looks the key up without a parent. Must not call the library. */
typedef const char* (*OSD_DATA_ZONE_FUNC)(const char*);

/* What the library asks the host's get-callback for. */
OSD_ENUM(tagOSD_MENU_GET_EVENT_E){
    OSD_MENU_GET_AF_VERSION = 0,
    OSD_MENU_GET_ISP_VERSION = 1,
    OSD_MENU_GET_AI_VERSION = 2,
    OSD_MENU_GET_FW_VERSION = 3,
    OSD_MENU_GET_VIDEO_FORMAT = 4,
    OSD_MENU_GET_DEVICE_NAME = 5,
    OSD_MENU_GET_SN = 6,
    OSD_MENU_GET_MAC = 7,
    OSD_MENU_GET_NDI_VERSION = 8,
    OSD_MENU_GET_FULL_NDI_VERSION = 9,
    OSD_MENU_GET_NDI_STATUS = 10,       /* the answer is a translation key */
    OSD_MENU_GET_LED_CUSTOM_COLOR = 11, /* six hexadecimal digits */
};

/* Answer block of the get-callback: a zero-terminated text, of which 31 bytes are shown. */
typedef struct tagOSD_MENU_CONTROL_PARAM_S {
    char acText[OSD_ANSWER_LEN];
} tagOSD_MENU_CONTROL_PARAM_S;

/* Answers an event by writing into the block before it returns. The first argument is the host's user pointer. Must not
 * call the library. */
typedef void (*OSD_GET_FUNC)(void*, tagOSD_MENU_GET_EVENT_E, tagOSD_MENU_CONTROL_PARAM_S*);

typedef struct tagOSD_HANDLER_S {
    OSD_GET_FUNC pfnGet;
    void* pvUser;
} tagOSD_HANDLER_S;

/* The manager; the canvas stands first, so the manager's address is the canvas's. */
typedef struct tagOSD_MENU_MGR_S {
    tagOSD_MENU_CANVAS_S stCanvas;
    SDL_Surface* pstSurface; /* over the canvas's pixels; null until initialised */
    TTF_Font* pstFont;
    TTF_Font* pstSelectFont; /* bold */
    float f32Scale;          /* 1.0 or 1.5, the factor of font sizes */
    SDL_Rect stPopRect;      /* popup */
    SDL_Rect stPopMsgRect;   /* popup with message */
    OSD_BUSINESS_FUNC pfnBusinessFunc;
    OSD_DATA_ZONE_FUNC pfnGetDataZoneParent; /* may be null */
} tagOSD_MENU_MGR_S;

#if UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu
static_assert(sizeof(tagOSD_MENU_CFG_S) == 28, "configuration record");
static_assert(sizeof(tagOSD_MENU_MGR_S) == 216, "manager record");
static_assert(offsetof(tagOSD_MENU_MGR_S, pstSurface) == 136, "manager record");
static_assert(offsetof(tagOSD_MENU_MGR_S, stPopRect) == 164, "manager record");
static_assert(offsetof(tagOSD_MENU_MGR_S, pfnBusinessFunc) == 200, "manager record");
#endif
static_assert(sizeof(tagOSD_MENU_CONTROL_PARAM_S) == 4096, "answer block");

/* The direction that a key hands to the cursor. */
OSD_ENUM(tagOSD_MENU_KEY_E){
    OSD_MENU_KEY_UP = 1,
    OSD_MENU_KEY_DOWN = 2,
    OSD_MENU_KEY_LEFT = 3,
    OSD_MENU_KEY_RIGHT = 4,
};

extern OSD_API tagOSD_MENU_MGR_S gstMenuMgr;
extern OSD_API uint32_t enMenuStyle;
extern OSD_API pthread_mutex_t g_stMutex; /* held by OSD_MENU_RenderCanvas through one redraw and its push */
extern OSD_API tagOSD_HANDLER_S gs_OsdHandler;

/* Starts SDL (timer, haptic, events, sensor), SDL_image and SDL_ttf. What was started before a failure is shut down.
 * SDL's timer thread runs from then on; the host's signals stay its own. */
OSD_API int OSD_MENU_InitOpensourceRes(void);

/* Builds the manager, its canvas in media memory and the surface over it, and registers with the media service.
 * pstCfg                is copied
 * pfnBusinessFunc       never null
 * pfnGetDataZoneParent  may be null
 * Clears gstPageMgr and gstMenuMgr and follows no pointer in them. On failure everything that was made is released and
 * the menu refuses to draw. The host calls this once; before a further call, which releases canvas and fonts of the
 * last successful one and builds them anew, it closes the menu. They are the library's: nobody else frees them. */
OSD_API int OSD_MENU_InitSdkRes(tagOSD_MENU_CFG_S* pstCfg, OSD_BUSINESS_FUNC pfnBusinessFunc,
                                OSD_DATA_ZONE_FUNC pfnGetDataZoneParent);

/* Parts of OSD_MENU_InitSdkRes, for hosts that start step by step. The rectangles return 0. */

/* The menu's rectangle from its fractions, each value rounded up to a multiple of 4; the base's own place is not added. */
OSD_API int osdMenuCalcMenuRect(SDL_Rect* pstBase, tagOSD_MENU_RECT_S* pstFrac, SDL_Rect* pstOut);

/* The popup in the middle of the menu: a quarter of its width and height. */
OSD_API int osdMenuCalcPopRect(SDL_Rect* pstMenu, SDL_Rect* pstOut);

/* The popup with message: two thirds of the menu's width, a quarter of its height. */
OSD_API int osdMenuCalcPopWithMsgRect(SDL_Rect* pstMenu, SDL_Rect* pstOut);

/* Opens the two fonts and makes the surface over the canvas; on another manager than gstMenuMgr they are the caller's.
 * Returns 0, or -1 with nothing left open. */
OSD_API int osdMenuCreatSurface(tagOSD_MENU_MGR_S* pstMgr);

/* Opens the root page "main" when the menu is closed, and draws; does nothing when it is open. Returns 0. */
OSD_API int OSD_MENU_OpenMenu(void);

/* Redraws the top page and shows it on all channels; with no page open hides the overlay. Takes g_stMutex.
 * Returns -1 before OSD_MENU_InitSdkRes has succeeded and, printing nothing, on a page of a layout that nothing draws;
 * neither pushes. */
OSD_API int OSD_MENU_RenderCanvas(void);

/* Refreshes one channel with the pixels as they are; the media service calls it at a time of its own. No lock, no
 * drawing. bShow counts only while a page is open. pstAttach is passed through. Returns 0. */
OSD_API int OSD_MENU_UpdateCanvas(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach);

/* 1 while a page is open. */
OSD_API OSD_BOOL OSD_MENU_GetMenuStatus(void);

/* 1 when the selected item of the top page opens a sub-page; 1 also while the menu is closed. */
OSD_API OSD_BOOL OSD_Menu_HasSubPage(void);

/* The same question, answered 0 while the menu is closed and on an icon page. */
OSD_API OSD_BOOL OSD_MENU_HasSubPageWithOutIcon(void);

/* Sets the get-callback for versions and device facts, and the pointer handed to it. Either may be null. Returns 0. */
OSD_API int Osd_GetVersionCallback(OSD_GET_FUNC pfnGet, void* pvUser);

/* The address of gs_OsdHandler. */
OSD_API tagOSD_HANDLER_S* OsdMenuGetHandler(void);

/* Builds the top page anew from its file and draws it: cursor on the first item, uncommitted changes gone.
 * Returns -1 with no page open, and prints nothing then; else 0, also when the file can't be parsed. */
OSD_API int OSD_MENU_RefreshCurrentPage(void);

/* Reads the top-level items with this key again, with their visible sub-items, and draws when there is one.
 * Returns 0. */
OSD_API int OSD_MENU_RefreshItem(char* pcItemIndex);

/* Reads the top-level items again, in order, up to and with the first CONFIRM_POP_BTN item; doesn't draw. Returns 0. */
OSD_API int OSD_MENU_RefreshPage(void);

/* Keys of the remote control. Each is one call: when it returns, the new state has been drawn and shown. All return 0,
 * unless told otherwise. A page file that can't be read counts as a page, with the items that stand before the
 * mistake; the menu key takes it away. */

/* Menu closed: opens "main". One page open: closes the menu. More: drops the address edit of the selected item, or else
 * goes back one page. Returns -1 when the page count is negative. */
OSD_API int OSD_MENU_HandleKeyMenu(void);

/* Opens "advanced" in place of all open pages. Returns -1 when the page count is negative. */
OSD_API int OSD_MENU_HandleKeyAdvancedMenu(void);

/* Goes back one page, dropping an address edit with its page; does nothing while the menu is closed. */
OSD_API int OSD_MENU_ReturnMenu(void);

/* Closes the menu with all its pages; hides the overlay again when it is closed. */
OSD_API int OSD_MENU_CloseMenu(void);

/* Directions, by what they meet; a diagonal makes both moves and draws once. Nothing happens while the menu is closed.
 *   list               up and down move the cursor, left and right step the value, which goes to the business function
 *   paged list         the same; at the ends of the list up and down turn the page, and right enters a sub-page
 *   popup              left and right move the cursor
 *   icon page          all four move through the grid
 *   address in edit    left and right move to another digit, up and down turn it */
OSD_API int OSD_MENU_HandleKeyUp(void);
OSD_API int OSD_MENU_HandleKeyDown(void);
OSD_API int OSD_MENU_HandleKeyLeft(void);
OSD_API int OSD_MENU_HandleKeyRight(void);
OSD_API int OSD_MENU_HandleKeyUp_Left(void);
OSD_API int OSD_MENU_HandleKeyUp_Right(void);
OSD_API int OSD_MENU_HandleKeyDown_Left(void);
OSD_API int OSD_MENU_HandleKeyDown_Right(void);

/* Left and right without the business function: the host calls OSD_MENU_HandleSetParam when the value is to apply. */
OSD_API int OSD_MENU_HandleKeyLeftUpdateItem(void);
OSD_API int OSD_MENU_HandleKeyRightUpdateItem(void);

/* Hands the selected item of a list to the business function, changed or not, and draws. A value that waits for the
 * home key, and a DNS mode that a static address mode holds, are only drawn. Nothing happens on icon and popup pages
 * and on pages that a confirm page applies, but "network". */
OSD_API int OSD_MENU_HandleSetParam(void);

/* The enter key: opens the sub-page or confirm page of the selected item, answers a confirm page, presses a button,
 * applies a waiting value, or starts and ends the editing of an address. "Yes" holds its caller for one second, unless
 * it applies the whole page below. Returns -1 when no item is selected (with no line in the log), when no language can
 * be had, and when the page to open can't be read or would be the sixth; 0 while the menu is closed. */
OSD_API int OSD_MENU_HandleKeyHome(void);

/* 1 when the top page is "network". */
OSD_API OSD_BOOL osdXmlIsInNetworkPage(void);

/* 1 when the top page is "exposure" and the committed option of its item "ViewFollowExposure" reads "On"; for the page
 * "wblance" and the item "ViewFollowWB" the second. */
OSD_API OSD_BOOL osdXmlIsOnOfViewFollowExposure(void);
OSD_API OSD_BOOL osdXmlIsOnOfViewFollowWB(void);

/* Fills pstPage from the file of the page; the caller chooses the record and counts it in gstPageMgr.s32PageCnt.
 * The record must hold no items. Whatever the failure, pstPage->stItemList is a valid list afterwards. */
OSD_API int OSD_MENU_ParseXml(char* pcPageName, tagPAGE_NODE_S* pstPage);

/* Draw a page of one layout onto the canvas. Call after OSD_MENU_InitSdkRes has succeeded and under g_stMutex, as all
 * below. Return 0. */
OSD_API int OSD_MENU_RenderIconCanvas(tagPAGE_NODE_S* pstPage);               /* "icon" */
OSD_API int OSD_MENU_RenderVerticalCanvas(tagPAGE_NODE_S* pstPage);           /* "vertical_align" */
OSD_API int OSD_MENU_RenderHorizontalCanvas(tagPAGE_NODE_S* pstPage);         /* "horizontal_align" */
OSD_API int OSD_MENU_RenderVerticalSpecialCanvas(tagPAGE_NODE_S* pstPage);    /* "vertical_tolvane_align" */
OSD_API int OSD_MENU_RenderVerticalCanvasWithKETH(tagPAGE_NODE_S* pstPage);   /* "vertical_align_keth" */
OSD_API int OSD_MENU_RenderHorizontalCanvasWithKETH(tagPAGE_NODE_S* pstPage); /* "horizontal_align_keth" */

/* Draw one item with its visible sub-items in the vertical, the Tolvane and the paged list.
 * pstLayoutCursor  y and h of the row above, y 0 for none; stands on the last row drawn afterwards
 * bSelected        the item holds the cursor
 * On failure the row has no text and the cursor stays; what goes before a text stays too: the arrow of a Tolvane row,
 * the picture of a button, and a separator line, on which the cursor then stands. */
OSD_API int OSD_MENU_RenderVerticalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);
OSD_API int OSD_MENU_RenderVerticalTolvaneItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor,
                                               OSD_BOOL bSelected);
OSD_API int OSD_MENU_RenderVerticalKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);

/* Draw one item of a popup and move pstLayoutCursor to its line; sub-items aren't drawn. The cursor stays on failure. */
OSD_API int OSD_MENU_RenderHorizontalItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);
OSD_API int OSD_MENU_RenderHorizontalItemWithKETH(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor,
                                                  OSD_BOOL bSelected);

/* Draws the cell of an icon page at the item's stRect. -1 where the font's size, the picture or the caption can't be
 * had. */
OSD_API int OSD_MENU_RenderIconText(tagITEM_NODE_S* pstItemNode, OSD_BOOL bSelected);

/* Draws the key hints at the foot of a Tolvane list that fit the item; -1 at the first that can't be had. */
OSD_API int OSD_MENU_RenderBelowIcon(tagITEM_NODE_S* pstItemNode);

/* Parts of the paged list. */

/* Draws the arrows that tell which way the page turns, or none. Returns 0. */
OSD_API int osdMenuDrawTurnArrow(tagPAGE_TURN_S* pstTurn);

/* Draws the title and the rule under it; pstLayoutCursor stands on the rule afterwards, and stays on failure. bSelected
 * isn't read. */
OSD_API int OSD_MENU_RenderTitleKETHItem(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, OSD_BOOL bSelected);

/* Places and draws the label of a row, with its separator line and its arrow. Gives the place and the surface, which is
 * the caller's. A separator takes pstLayoutCursor with it, on failure too. -1 without a surface. */
OSD_API int OSD_MENU_DrawItemName(tagITEM_NODE_S* pstItemNode, SDL_Rect* pstLayoutCursor, int s32FontSize,
                                  OSD_BOOL bBright, SDL_Rect* pstNameRect, SDL_Surface** ppstSurface);

/* Draws the label at stRect, a button's behind its picture. The surface is the caller's. -1 without one. */
OSD_API int OSD_MENU_RenderTxt(tagITEM_NODE_S* pstItemNode, SDL_Rect stRect, int s32FontSize, SDL_Surface** ppstSurface,
                               OSD_BOOL bBright);

/* Blits the whole of pstSrc onto the canvas at stDst.x, stDst.y; a null pstSrc draws nothing. Returns 0. */
OSD_API int OSD_MENU_FillData2Canvas(SDL_Surface* pstSrc, SDL_Rect stDst);

/* Draws the pending message line of the top page; the argument is not read. Returns 0. */
OSD_API int OSD_MENU_HandleKeyMsg(SDL_Rect stLayoutCursor);

OSD_EXTERN_C_END
