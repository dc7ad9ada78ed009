// The value of an item as it is drawn.
#pragma once

#include "osd_records.h"

extern "C" {
// Writes the value's text, and for a bar its position and number of steps; what doesn't apply is left alone.
// pcValue has 32 bytes. Returns 0, or -1 for a value type that is none.
OSD_API int osdMenuGetItemValInfo(tagITEM_NODE_S* pstItemNode, char* pcValue, int* ps32Pos, int* ps32Cnt);

// 1 when the page ends behind this item: an applied DHCP mode whose DNS is automatic.
OSD_API OSD_BOOL osdMenuJudgeNetWorkofDhcp(tagITEM_NODE_S* pstItemNode);
}
