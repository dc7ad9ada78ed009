#include "menu/core/page.h"

#include <cstdlib>

#include "menu/core/flat_list.h"

tagPAGE_MGR_S gstPageMgr;

tagPAGE_NODE_S* osdPageTop(tagPAGE_MGR_S* pstMgr)
{
    const int32_t s32Cnt = osdPageCnt(pstMgr);
    return s32Cnt >= 1 ? &pstMgr->astPage[s32Cnt - 1] : nullptr;
}

tagPAGE_NODE_S* osdXmlGetCurPage() { return osdPageTop(&gstPageMgr); }

OSD_ITEM_PTR osdItemNew() { return OSD_ITEM_PTR(static_cast<tagITEM_NODE_S*>(calloc(1, sizeof(tagITEM_NODE_S)))); }

static uint32_t gs_au32Filling[OSD_PAGE_MAX]; // grows whenever the items of that record go

static uint32_t* osdPageFilling(const tagPAGE_NODE_S* pstPage)
{
    for (uint32_t i = 0; i < OSD_PAGE_MAX; i++) {
        if (pstPage == &gstPageMgr.astPage[i]) {
            return &gs_au32Filling[i];
        }
    }
    return nullptr; // a record outside the stack is its owner's
}

tagPAGE_MARK_S osdPageMark(const tagPAGE_NODE_S* pstPage)
{
    const uint32_t* pu32Filling = osdPageFilling(pstPage);
    return {pstPage, pu32Filling != nullptr ? *pu32Filling : 0};
}

bool osdPageHolds(const tagPAGE_MARK_S& stMark) { return osdPageMark(stMark.pstPage).u32Filling == stMark.u32Filling; }

static void osdItemsRelease(list_head* pstHead)
{
    for (tagITEM_NODE_S* pstItem : osdItems(pstHead)) {
        (void)osdMenuReleaseItem(pstItem); // always 0
    }
}

int osdMenuReleaseItem(tagITEM_NODE_S* pstItemNode)
{
    const int32_t s32Lists = osdItemListCnt(pstItemNode);
    for (int32_t i = 0; i < s32Lists; i++) {
        osdItemsRelease(&pstItemNode->astSubList[i]);
    }
    free(pstItemNode);
    return 0;
}

void osdPageDropItems(tagPAGE_NODE_S* pstPage)
{
    uint32_t* pu32Filling = osdPageFilling(pstPage);
    if (pu32Filling != nullptr) {
        (*pu32Filling)++;
    }
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
    gstPageMgr.s32PageCnt = osdPageCnt(&gstPageMgr) - 1;
    return 0;
}
