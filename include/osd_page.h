/* Pages, items and values: what the menu itself works with, for hosts that look into open pages, draw items of their
 * own or apply confirm pages by themselves. Compiles as C11 and as C++17.
 *
 * Holds for every function here, unless its own comment says otherwise:
 *   - int results are 0 on success and -1 on failure, with a line in the log. "Returns 0": it can't fail.
 *   - Pointer arguments must not be null; texts are zero-terminated UTF-8 and stay the caller's.
 *   - Nothing draws; OSD_MENU_RenderCanvas does. One call at a time, as for osd_menu.h.
 *   - A flattened list holds the items of a page that show, in the order in which they are drawn, linked through
 *     stTmpNode; the next list takes the links away. */
#pragma once

#include "osd_menu.h"

OSD_EXTERN_C_BEGIN

/* The page stack. */

/* The top page, or null with no page open. */
OSD_API tagPAGE_NODE_S* osdXmlGetCurPage(void);

/* The open page directly below, or null. */
OSD_API tagPAGE_NODE_S* osdMenuGetPrevPage(tagPAGE_NODE_S* pstPage);

/* Pushes the named page. Returns 0, or -1 with no page open, on a full stack and when the page can't be parsed. */
OSD_API int osdMenuNextPage(char* pcPageName);

/* Pops the top page. Returns -1 with no page open. */
OSD_API int osdMenuPrevPage(void);

/* Frees the top page's items, clears its record and lowers the page count; uncommitted values are gone. Returns 0, also
 * with no page open. */
OSD_API int osdMenuReleaseSinglePage(void);

/* Translates all open pages into the language that the configuration now reports. Sub-items, page messages and status
 * texts stay as they are until their page is opened again. Returns 0, or -1 with nothing changed. */
OSD_API int osdMenuReparseParamByLang(void);

/* Translates one item. Returns 0. */
OSD_API int osdMenuReplaceItemLang(char* pcLanguage, tagITEM_NODE_S* pstItemNode);

/* Items. */

/* Frees the item and all items below it. Returns 0. */
OSD_API int osdMenuReleaseItem(tagITEM_NODE_S* pstItemNode);

/* 1 when the item has sub-items for its current option. */
OSD_API OSD_BOOL osdMenuHasSubItem(tagITEM_NODE_S* pstItemNode);

/* Appends the item and its visible sub-items, depth first, to a flattened list. Returns 0. */
OSD_API int osdMenuInsertItems2TmpList(tagITEM_NODE_S* pstItemNode, list_head* pstHead);

/* The page's selected item, or null. */
OSD_API tagITEM_NODE_S* osdMenuGetSelectedItem(tagPAGE_NODE_S* pstPage);

/* 1 when a direct sub-item under the current option has the cursor. */
OSD_API OSD_BOOL osdMenuIsSubItemSelected(tagITEM_NODE_S* pstItemNode);

/* Values read from the configuration. */

/* Fills a STATUS item's text from its source; empty where there is none. Returns 0. */
OSD_API int osdXmlParseStatusParam(char* pcLanguage, tagITEM_NODE_S* pstItemNode);

/* Reads the current value of a numeric or option item again. Returns 0. */
OSD_API int osdMenuGetItemValue(tagITEM_NODE_S* pstItemNode);

/* Reads the text of an EDITABLE item again. */
OSD_API void osdXmlFillEditableValue(tagITEM_NODE_S* pstItemNode);

/* Reads a sub-item and all below it again. Returns 0. */
OSD_API int osdXmlFillItemOfSubItem(tagITEM_NODE_S* pstItemNode);

/* Reads the sub-items of the current option again. Returns 0, or -1 on an item that can't have any. */
OSD_API int osdMenuUpdateSubItems(tagITEM_NODE_S* pstItemNode);

/* Reads one value text; pcOut has 16 bytes at least. Returns 0. */
OSD_API int osdMenuGetTxtValue(char* pcKey, char* pcDataZone, char* pcOut);

/* Reads the item's value text into acValue[0], translated where a translation exists. Returns 0. */
OSD_API int osdMenuGetTranslatedValue(tagITEM_NODE_S* pstItemNode, char* pcLanguage);

/* Writes the value's text, and for a bar its position and number of steps; what doesn't apply is left alone. pcValue
 * has 32 bytes. Returns 0, or -1 for a value type that is none. */
OSD_API int osdMenuGetItemValInfo(tagITEM_NODE_S* pstItemNode, char* pcValue, int* ps32Pos, int* ps32Cnt);

/* Changed values: when they count as changed, when they are committed, and when the host's function gets them. */

/* 1 when the item has a pending change. */
OSD_API OSD_BOOL osdMenuParamChange(tagITEM_NODE_S* pstItemNode);

/* Commits a pending change where the top page allows it, and hands it on when bUpdate isn't 0. Returns 0. */
OSD_API int osdMenuInvokeBusinessFuncIfNeed(tagITEM_NODE_S* pstItemNode, OSD_BOOL bUpdate);

/* Hands the item on, changed or not, unless its value waits for the home key. Returns 0. */
OSD_API int osdMenuInvokeBusinessFunc(tagITEM_NODE_S* pstItemNode);

/* After a cursor key: osdMenuInvokeBusinessFuncIfNeed for the active item of a flattened list. Returns 0, or -1 when
 * there is none. */
OSD_API int osdMenuUpdateParam(list_head* pstList, OSD_BOOL bUpdate);

/* Keeps the colour text of the page "tally" up to date: asks the device, or with bUpdate 0, as the device doesn't know
 * the change yet, computes it from the selected item. Returns 0. */
OSD_API int osdMenuUpdateStatusWithCustomColor(tagPAGE_NODE_S* pstPage, list_head* pstList, OSD_BOOL bUpdate);

/* 1 when the item is a DNS mode and stands right behind a committed static address mode in the most recent flattened
 * list. For an item that stands on no open page, what its stTmpNode leads to must still be there. */
OSD_API OSD_BOOL osdXmlIsStaticOfNetMode(tagITEM_NODE_S* pstItemNode);

/* 1 when the page ends behind this item: an applied DHCP mode whose DNS is automatic. */
OSD_API OSD_BOOL osdMenuJudgeNetWorkofDhcp(tagITEM_NODE_S* pstItemNode);

/* What a direction means on each layout. */

/* Moves the cursor of the top page, or steps a value that the host's function doesn't get, and draws. Returns 0. */
OSD_API int osdMenuChangeItem(tagOSD_MENU_KEY_E enKey);

/* Applies one direction to the page. bUpdate 0 keeps a changed value from the host's function. Returns 0. */
OSD_API int osdMenuUpdateItemCursor(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey, OSD_BOOL bUpdate);

/* The cursors on a flattened list. Return 0, or -1 when no item is active; the paged one 1 when it turned the page, and
 * the list describes the top page no more. */
OSD_API int osdMenuUpdateVerticalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey);
OSD_API int osdMenuUpdateHorizontalItemCursor(list_head* pstList, tagOSD_MENU_KEY_E enKey);
OSD_API int osdMenuUpdateVerticalItemCursorWithKETH(list_head* pstList, tagOSD_MENU_KEY_E enKey);

/* Editing of an address: left and right walk over its digits, up and down turn the digit under the cursor.
 *     folded      192.168.1.5          shown while the item is not edited
 *     expanded    192.168.001.005      edited: every character has a fixed place */

/* 1 when the selected item of the top page is being edited. */
OSD_API OSD_BOOL osdMenuIsItemEditing(void);

/* Rewrite a text in place into one of the forms; the field has room for 31 bytes. A text that is no address counts as
 * far as it can be read, missing groups as 0. Return 0. */
OSD_API int osdMenuExpandNetworkData(char* pcData);
OSD_API int osdMenuFoldNetworkData(char* pcData);

/* Counts the digits and the dots of an edited address, up to and with the character under the cursor. Returns 0. */
OSD_API int osdMenuCalcInfoBeforeCursor(tagITEM_NODE_S* pstItemNode, int* ps32Digits, int* ps32Dots);

/* Applies one direction to the selected item of the top page. Returns 0, or -1 when there is none. */
OSD_API int osdMenuEditableItemKeyEvent(tagOSD_MENU_KEY_E enKey);

/* Ends the editing of the selected item and drops the edit. Returns 1 when there was one. */
OSD_API OSD_BOOL osdMenuExitEditableStatus(tagPAGE_MGR_S* pstMgr);

/* Confirm pages: a page with the items "Yes" and "No" above the page that it asks about.
 *
 * The handlers carry out an answer. pstItemNode is the selected item of the confirm page, pstPage the confirm page, the
 * top page. They return 0, after "Yes" and "No" with the confirm page gone; 1 when the page below is not theirs and -1
 * when there is no language, both with nothing done. */

/* For the parent items "FactoryRestore", "Restart" and "LensCorrection", on whatever page. */
OSD_API int OSD_MENU_FactoryRestoreHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);

/* For the parent page that the name says: "Yes" applies its items up to and with "Confirm". */
OSD_API int OSD_MENU_NetworkHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_FormatHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_RotateHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_PipHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);
OSD_API int OSD_MENU_VideoHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);

/* For every other parent page: "Yes" applies the parent item and reads the page's values again. */
OSD_API int OSD_MENU_IspHandleHomeKey(tagITEM_NODE_S* pstItemNode, tagPAGE_NODE_S* pstPage);

/* Applies the sub-items below one item of the page "network". Returns 0. */
OSD_API int OSD_MENU_NetworkItemExec(tagITEM_NODE_S* pstItemNode);

/* Put the text back on the button below the top page that the home key has changed: on "FactoryRestore" the bare word
 * "Confirm", on four others its translation. Return 0; the second -1 when there is no language. */
OSD_API int OSD_MENU_FactoryRestoreHandleMenuKey(tagPAGE_MGR_S* pstMgr);
OSD_API int OSD_MENU_RestartHandleMenuKey(tagPAGE_MGR_S* pstMgr);

OSD_EXTERN_C_END
