#include "menu/core/page.h"

#include <algorithm>
#include <cstdlib>

#include "menu/core/flat_list.h"

tagPAGE_MGR_S gstPageMgr;

tagPAGE_NODE_S* osdXmlGetCurPage()
{
    const int32_t s32Cnt = gstPageMgr.s32PageCnt;
    return s32Cnt >= 1 && s32Cnt <= OSD_PAGE_MAX ? &gstPageMgr.astPage[s32Cnt - 1] : nullptr;
}

OSD_ITEM_PTR osdItemNew() { return OSD_ITEM_PTR(static_cast<tagITEM_NODE_S*>(calloc(1, sizeof(tagITEM_NODE_S)))); }

static void osdItemsRelease(list_head* pstHead)
{
    for (tagITEM_NODE_S* pstItem : osdItems(pstHead)) {
        (void)osdMenuReleaseItem(pstItem); // always 0
    }
}

int osdMenuReleaseItem(tagITEM_NODE_S* pstItemNode)
{
    if (osdItemHasOptionLists(pstItemNode)) {
        const int32_t s32Lists = std::min<int32_t>(pstItemNode->s32ValCnt, OSD_OPTION_MAX);
        for (int32_t i = 0; i < s32Lists; i++) {
            osdItemsRelease(&pstItemNode->astSubList[i]);
        }
    }
    free(pstItemNode);
    return 0;
}

void osdPageDropItems(tagPAGE_NODE_S* pstPage)
{
    osdItemsRelease(&pstPage->stItemList);
    osdListInit(&pstPage->stItemList);
    pstPage->s32ItemCnt = 0;
}

int osdMenuReleaseSinglePage()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    if (pstPage == nullptr) {
        return 0;
    }
    osdPageDropItems(pstPage);
    *pstPage = {};
    gstPageMgr.s32PageCnt--;
    return 0;
}
