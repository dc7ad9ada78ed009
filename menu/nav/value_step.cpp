#include "menu/nav/value_step.h"

#include "comm/arith.h"

// In 64 bits, as the numbers are the configuration's.
static void osdNumberStep(tagITEM_NODE_S* pstItem, bool bForwards)
{
    const int64_t s64Step = bForwards ? pstItem->s32Step : -static_cast<int64_t>(pstItem->s32Step);
    const int64_t s64Value = pstItem->s32Cur + s64Step;
    if (bForwards) {
        pstItem->s32Cur = s64Value > pstItem->s32Max ? pstItem->s32Min : osdClampS32(s64Value);
    } else {
        pstItem->s32Cur = s64Value < pstItem->s32Min ? pstItem->s32Max : osdClampS32(s64Value);
    }
}

static void osdOptionStep(tagITEM_NODE_S* pstItem, bool bForwards)
{
    const int64_t s64Index = pstItem->s32CurIdx + int64_t{bForwards ? 1 : -1};
    if (bForwards) {
        pstItem->s32CurIdx = s64Index >= pstItem->s32ValCnt ? 0 : osdClampS32(s64Index);
    } else {
        pstItem->s32CurIdx = s64Index < 0 ? osdClampS32(int64_t{pstItem->s32ValCnt} - 1) : osdClampS32(s64Index);
    }
}

void osdValueStep(tagITEM_NODE_S* pstItem, bool bForwards)
{
    if (pstItem->enValType == NUMERICAL) {
        osdNumberStep(pstItem, bForwards);
    } else if (pstItem->enValType == OPTTXT) {
        osdOptionStep(pstItem, bForwards);
    }
}
