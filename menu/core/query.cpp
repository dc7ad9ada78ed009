#include "menu/core/query.h"

#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/item.h"
#include "menu/core/page.h"
#include "menu/core/words.h"

bool osdQueryOpensPage(tagPAGE_NODE_S* pstPage)
{
    const tagITEM_NODE_S* pstItem = osdPageSelected(pstPage);
    return pstItem != nullptr && pstItem->enAttr == SUBPAGE;
}

tagPAGE_NODE_S* osdQueryPage(const char* pcName)
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    return pstPage != nullptr && osdTextEqual(pstPage->acPageName, pcName) ? pstPage : nullptr;
}

bool osdQueryIsOn(const char* pcPageName, const char* pcKey)
{
    tagPAGE_NODE_S* pstPage = osdQueryPage(pcPageName);
    if (pstPage == nullptr) {
        return false;
    }
    for (const tagITEM_NODE_S* pstItem : osdItems(&pstPage->stItemList)) {
        if (osdTextEqual(pstItem->acItemIndex, pcKey) &&
            osdTextFieldEqual(osdItemOption(pstItem, pstItem->s32SavedIdx), OSD_WORD_ON)) {
            return true;
        }
    }
    return false;
}
