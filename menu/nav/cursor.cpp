#include "menu/nav/cursor.h"

#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/nav/address.h"
#include "menu/nav/apply.h"
#include "menu/nav/icon_cursor.h"
#include "menu/nav/list_cursor.h"
#include "menu/nav/paged_cursor.h"
#include "menu/nav/tally.h"

struct tagCURSOR_S {
    tagPAGE_LAYOUT_E enLayout;
    bool bEdits;   // an address may take the key
    bool bApplies; // a changed value is committed and handed on
    tagMOVE_E (*pfnMove)(list_head*, tagOSD_MENU_KEY_E);
};

// An icon page has no cursor in its items.
static constexpr tagCURSOR_S c_astCursor[] = {{PAGE_LAYOUT_VERTICAL, true, true, osdCursorVertical},
                                              {PAGE_LAYOUT_HORIZONTAL, false, false, osdCursorHorizontal},
                                              {PAGE_LAYOUT_VERTICAL_TOLVANE, true, true, osdCursorVertical},
                                              {PAGE_LAYOUT_VERTICAL_KETH, true, true, osdCursorPaged},
                                              {PAGE_LAYOUT_HORIZONTAL_KETH, false, false, osdCursorHorizontal}};

static const tagCURSOR_S* osdCursorFind(tagPAGE_LAYOUT_E enLayout)
{
    for (const tagCURSOR_S& stCursor : c_astCursor) {
        if (stCursor.enLayout == enLayout) {
            return &stCursor;
        }
    }
    return nullptr;
}

bool osdCursorApply(list_head* pstList, bool bUpdate)
{
    tagITEM_NODE_S* pstItem = osdCursorActive(pstList);
    if (pstItem != nullptr) {
        osdApplyChange(pstItem, bUpdate);
    }
    return pstItem != nullptr;
}

// The host's function may redraw, which threads the list anew, or close the page.
static void osdCursorApplyOn(tagPAGE_NODE_S* pstPage, list_head* pstList, bool bUpdate)
{
    const tagPAGE_MARK_S stMark = osdPageMark(pstPage);
    osdCursorApply(pstList, bUpdate); // without a cursor the log has a second line then
    if (pstPage->enLayout == PAGE_LAYOUT_VERTICAL_KETH && osdPageHolds(stMark)) {
        osdPageFlatten(pstPage, pstList);
        osdTallyUpdate(pstPage, pstList, bUpdate);
    }
}

void osdCursorKey(tagPAGE_NODE_S* pstPage, tagOSD_MENU_KEY_E enKey, bool bUpdate)
{
    if (pstPage->enLayout == PAGE_LAYOUT_ICON) {
        osdIconMove(pstPage, enKey);
        return;
    }
    const tagCURSOR_S* pstCursor = osdCursorFind(pstPage->enLayout);
    if (pstCursor == nullptr) {
        return;
    }
    if (pstCursor->bEdits && osdAddressIsEdited()) {
        osdAddressKey(enKey);
        return;
    }
    list_head stFlatList;
    osdPageFlatten(pstPage, &stFlatList);
    const bool bTurned = pstCursor->pfnMove(&stFlatList, enKey) == MOVE_TURNED;
    if (pstCursor->bApplies && !bTurned) {
        osdCursorApplyOn(pstPage, &stFlatList, bUpdate);
    }
}
