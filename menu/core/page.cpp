#include "menu/core/page.h"

#include "comm/list.h"
#include "menu/core/item.h"

tagPAGE_MGR_S gstPageMgr;

tagPAGE_NODE_S* osdPageTop(tagPAGE_MGR_S* pstMgr)
{
    const int32_t s32Cnt = osdPageCnt(pstMgr);
    return s32Cnt >= 1 ? &pstMgr->astPage[s32Cnt - 1] : nullptr;
}

tagPAGE_NODE_S* osdPageBelow(const tagPAGE_NODE_S* pstPage)
{
    for (int32_t i = 1; i < osdPageCnt(&gstPageMgr); i++) {
        if (pstPage == &gstPageMgr.astPage[i]) {
            return &gstPageMgr.astPage[i - 1];
        }
    }
    return nullptr;
}

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

void osdPagePop()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage != nullptr) {
        osdPageDropItems(pstPage);
        *pstPage = {};
        gstPageMgr.s32PageCnt = osdPageCnt(&gstPageMgr) - 1;
    }
}
