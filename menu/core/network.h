// The network rule: an address mode ("IpMode") with its addresses and its DNS mode ("DnsMode") below it. A static
// address mode holds the DNS mode at static; an automatic one takes its addresses off the screen.
#pragma once

#include "menu/core/page.h"

bool osdNetworkIsAddressMode(const tagITEM_NODE_S* pstItem);
bool osdNetworkIsDnsMode(const tagITEM_NODE_S* pstItem);

// Whether the item is a DNS mode right behind a committed static address mode in the most recent flattened list.
bool osdNetworkHolds(const tagITEM_NODE_S* pstItem);

// Whether the item is a DNS mode that nothing holds.
inline bool osdNetworkDnsIsFree(const tagITEM_NODE_S* pstItem)
{
    return osdNetworkIsDnsMode(pstItem) && !osdNetworkHolds(pstItem);
}

// Whether the page ends behind this item: an applied DHCP mode whose DNS is automatic.
bool osdNetworkEndsPage(tagITEM_NODE_S* pstItem);

// "Yes" to a change of the network: the item goes to the host, and all that shows below it. False when the host took the
// page away.
bool osdNetworkApply(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem);

// Only the sub-items of one item.
bool osdNetworkApplySubItems(const tagPAGE_MARK_S& stMark, tagITEM_NODE_S* pstItem);
