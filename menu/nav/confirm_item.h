// Confirmed items: "Yes" hands the parent item itself to the host, and its button says how far that is.
#pragma once

#include "osd_records.h"

// What became of an answer on a confirm page. The numbers are those of the interface.
enum tagANSWER_E : int32_t {
    ANSWER_FAILED = -1, // there is no language; nothing was done
    ANSWER_DONE = 0,
    ANSWER_OTHERS = 1, // the page below belongs to another handler; nothing was done
};

// For the parent items "FactoryRestore", "Restart" and "LensCorrection", on whatever page.
tagANSWER_E osdConfirmFinish(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage);

// For every parent item: reads the page's values again.
tagANSWER_E osdConfirmReread(const tagITEM_NODE_S* pstAnswer, const tagPAGE_NODE_S* pstPage);
