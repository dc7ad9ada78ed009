#include "menu/nav/waiting.h"

#include "comm/text.h"
#include "menu/core/change.h"
#include "menu/core/item.h"
#include "menu/core/network.h"

void osdWaitingShow(const tagITEM_NODE_S* pstItem)
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage == nullptr || !osdItemWaits(pstItem)) {
        return;
    }
    if (!osdItemChanged(pstItem)) {
        pstPage->bKeyMsg = 0;
        return;
    }
    pstPage->bKeyMsg = 1;
    osdTextSetField(pstPage->acKeyMsg, pstItem->acMsg);
    if (osdNetworkDnsIsFree(pstItem)) {
        pstPage->bKeyMsg = 0; // the message of the DNS mode says that the address mode holds it
    }
}

void osdWaitingDrop(tagITEM_NODE_S* pstItem)
{
    if (!osdItemWaits(pstItem) || !osdItemChanged(pstItem)) {
        return;
    }
    osdItemRollBack(pstItem);
    tagPAGE_NODE_S* pstPage = osdPageTop();
    if (pstPage != nullptr) {
        pstPage->bKeyMsg = 0;
    }
}
