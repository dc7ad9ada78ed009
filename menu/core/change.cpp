#include "menu/core/change.h"

#include "osd_menu.h"

bool osdItemChanged(const tagITEM_NODE_S* pstItem)
{
    if (pstItem->enAttr == CONST_TXT) {
        return false;
    }
    if (pstItem->enValType == NUMERICAL) {
        return pstItem->s32Cur != pstItem->s32Saved;
    }
    return pstItem->enValType == OPTTXT && pstItem->s32CurIdx != pstItem->s32SavedIdx;
}

void osdItemCommit(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enValType == NUMERICAL) {
        pstItem->s32Saved = pstItem->s32Cur;
    } else if (pstItem->enValType == OPTTXT) {
        pstItem->s32SavedIdx = pstItem->s32CurIdx;
    }
}

void osdItemRollBack(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enValType == NUMERICAL) {
        pstItem->s32Cur = pstItem->s32Saved;
    } else if (pstItem->enValType == OPTTXT) {
        pstItem->s32CurIdx = pstItem->s32SavedIdx;
    }
}

void osdItemApply(tagITEM_NODE_S* pstItem)
{
    if (gstMenuMgr.pfnBusinessFunc != nullptr) {
        (void)gstMenuMgr.pfnBusinessFunc(pstItem); // a value that the host refuses stays until the host refreshes it
    }
}

bool osdItemSurvives(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem)
{
    osdItemApply(pstItem);
    return osdPageHolds(stMark);
}
