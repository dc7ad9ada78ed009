// One step of a value. A value wraps to the far end of its range and is never held at the near one.
#pragma once

#include "osd_records.h"

void osdValueStep(tagITEM_NODE_S* pstItem, bool bForwards);
