#include "menu/render/value.h"

#include <cstdio>

#include "comm/arith.h"
#include "comm/text.h"
#include "menu/core/item.h"
#include "menu/core/value_bind.h"
#include "menu/core/words.h"
#include "platform/config_call.h"

// How many steps fit a range; a step of 0 counts as none. The numbers come from the configuration.
static int64_t osdSteps(int32_t s32From, int32_t s32To, int32_t s32Step)
{
    return s32Step == 0 ? 0 : (int64_t{s32To} - s32From) / s32Step;
}

static void osdValueOfNumber(const tagITEM_NODE_S* pstItem, char* pcValue, int* ps32Pos, int* ps32Cnt)
{
    (void)snprintf(pcValue, OSD_TEXT_LEN, "%d", pstItem->s32Cur);
    *ps32Pos = osdClampS32(osdSteps(pstItem->s32Min, pstItem->s32Cur, pstItem->s32Step));
    *ps32Cnt = osdClampS32(osdSteps(pstItem->s32Min, pstItem->s32Max, pstItem->s32Step) + 1);
}

// The value as its source has it now. Addresses are shown as they are, every other text is a key.
static void osdValueLive(const tagITEM_NODE_S* pstItem, char* pcValue)
{
    const tagVALUE_TEXT_S stText = osdValueText(pstItem->acItemIndex, pstItem->acDataZone);
    if (osdTextEqual(pstItem->acItemIndex, OSD_KEY_IP_ADDR)) {
        osdTextCopy(pcValue, sizeof(stText.acText), stText.acText, sizeof(stText.acText));
        return;
    }
    OSD_TEXT acLanguage;
    OSD_TEXT acTranslated = "";
    osdCfgLanguage(acLanguage); // without a translation the value stays empty
    osdCfgTranslate(acLanguage, stText.acText, acTranslated);
    osdTextCopy(pcValue, OSD_TEXT_LEN, acTranslated, sizeof(acTranslated));
}

bool osdValueShown(const tagITEM_NODE_S* pstItem, char* pcValue, int* ps32Pos, int* ps32Cnt)
{
    switch (pstItem->enValType) {
    case NUMERICAL:
        osdValueOfNumber(pstItem, pcValue, ps32Pos, ps32Cnt);
        return true;
    case OPTTXT:
        if (pstItem->bShowValue == 1) {
            osdValueLive(pstItem, pcValue);
            return true;
        }
        osdTextCopy(pcValue, OSD_TEXT_LEN, osdItemOption(pstItem, pstItem->s32CurIdx), OSD_TEXT_LEN);
        *ps32Pos = pstItem->s32CurIdx;
        *ps32Cnt = pstItem->s32ValCnt;
        return true;
    case EDITTXT:
        osdTextCopy(pcValue, OSD_TEXT_LEN, pstItem->acValue[1], OSD_TEXT_LEN);
        return true;
    }
    return false;
}
