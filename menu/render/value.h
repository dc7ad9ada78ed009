// The value of an item as it is drawn.
#pragma once

#include "osd_records.h"

// Writes the value's text, and for a bar its position and number of steps; what doesn't apply is left alone. pcValue has
// 32 bytes. False for a value type that is none.
bool osdValueShown(const tagITEM_NODE_S* pstItem, char* pcValue, int* ps32Pos, int* ps32Cnt);
