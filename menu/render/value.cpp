
#include "osd_page.h"
#include <cstdio>

#include "comm/arith.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
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
static void osdValueLive(tagITEM_NODE_S* pstItem, char* pcValue)
{
    (void)osdMenuGetTxtValue(pstItem->acItemIndex, pstItem->acDataZone, pcValue); // always 0
    if (osdTextEqual(pstItem->acItemIndex, OSD_KEY_IP_ADDR)) {
        return;
    }
    char acLanguage[OSD_TEXT_LEN];
    char acTranslated[OSD_TEXT_LEN] = {};
    (void)osdCfgLanguage(acLanguage); // without a translation the value stays empty
    (void)osdCfgTranslate(acLanguage, pcValue, acTranslated);
    osdTextCopy(pcValue, OSD_TEXT_LEN, acTranslated, sizeof(acTranslated));
}

int osdMenuGetItemValInfo(tagITEM_NODE_S* pstItemNode, char* pcValue, int* ps32Pos, int* ps32Cnt)
{
    switch (pstItemNode->enValType) {
    case NUMERICAL:
        osdValueOfNumber(pstItemNode, pcValue, ps32Pos, ps32Cnt);
        return 0;
    case OPTTXT:
        if (pstItemNode->bShowValue == 1) {
            osdValueLive(pstItemNode, pcValue);
            return 0;
        }
        osdTextCopy(pcValue, OSD_TEXT_LEN, osdItemOption(pstItemNode, pstItemNode->s32CurIdx), OSD_TEXT_LEN);
        *ps32Pos = pstItemNode->s32CurIdx;
        *ps32Cnt = pstItemNode->s32ValCnt;
        return 0;
    case EDITTXT:
        osdTextCopy(pcValue, OSD_TEXT_LEN, pstItemNode->acValue[1], OSD_TEXT_LEN);
        return 0;
    }
    return -1;
}

OSD_BOOL osdMenuJudgeNetWorkofDhcp(tagITEM_NODE_S* pstItemNode)
{
    if (!osdTextEqual(pstItemNode->acItemIndex, OSD_KEY_IP_MODE)) {
        return 0;
    }
    char acLanguage[OSD_TEXT_LEN];
    char acDhcp[OSD_TEXT_LEN] = {};
    char acAuto[OSD_TEXT_LEN] = {};
    (void)osdCfgLanguage(acLanguage); // options are compared by their labels, as good as they are
    (void)osdCfgTranslate(acLanguage, OSD_WORD_DHCP_IP, acDhcp);
    (void)osdCfgTranslate(acLanguage, OSD_WORD_AUTO_MODE, acAuto);
    list_head* pstSubList = osdItemSubList(pstItemNode, pstItemNode->s32CurIdx);
    if (pstSubList == nullptr || !osdTextFieldEqual(osdItemOption(pstItemNode, pstItemNode->s32SavedIdx), acDhcp)) {
        return 0;
    }
    for (const tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
        if (osdTextEqual(pstSub->acItemIndex, OSD_KEY_DNS_MODE) &&
            osdTextFieldEqual(osdItemOption(pstSub, pstSub->s32CurIdx), acAuto)) {
            return 1;
        }
    }
    return 0;
}
