#include "menu/core/value_bind.h"

#include <algorithm>

#include "comm/log.h"
#include "menu/core/attr.h"
#include "menu/core/flat_list.h"
#include "menu/core/led_color.h"
#include "platform/config_call.h"

// The parent key of a lookup, or null for a lookup without one.
static const char* osdBindParent(const char* pcDataZone)
{
    return gstMenuMgr.pfnGetDataZoneParent != nullptr ? gstMenuMgr.pfnGetDataZoneParent(pcDataZone) : nullptr;
}

// Records are cleared first: what the service doesn't fill reads as empty.
static tagCFG_VALUE_TXT_S osdBindTxt(const char* pcParent, const char* pcKey)
{
    tagCFG_VALUE_TXT_S stTxt = {};
    osdCfgGetTxt(pcParent, pcKey, &stTxt);
    return stTxt;
}

// The integer record of an item; the LED keys take their byte out of the one colour.
static tagCFG_VALUE_INT_S osdBindInt(const char* pcParent, const tagITEM_NODE_S* pstItem)
{
    const tagLED_BYTE_S* pstByte = osdLedByteFind(pstItem->acItemIndex);
    tagCFG_VALUE_INT_S stInt = {};
    osdCfgGetInt(pcParent, pstByte != nullptr ? OSD_KEY_LED_COLOR : pstItem->acItemIndex, &stInt);
    if (pstByte != nullptr) {
        stInt.s32Max = 255;
        stInt.s32Cur = static_cast<int32_t>((static_cast<uint32_t>(stInt.s32Cur) >> pstByte->u32Shift) & 0xFFU);
    }
    return stInt;
}

// Every option whose key equals the value takes the index, so the last of equal keys wins.
static void osdBindSelect(tagITEM_NODE_S* pstItem, const tagCFG_VALUE_TXT_S& stTxt)
{
    char acValue[OSD_TEXT_LEN];
    osdTextSetField(acValue, stTxt.acValue);
    const int32_t s32Cnt = std::min<int32_t>(pstItem->s32ValCnt, OSD_OPTION_MAX);
    for (int32_t i = 0; i < s32Cnt; i++) {
        if (osdTextEqual(pstItem->acValueKey[i], acValue)) {
            pstItem->s32CurIdx = i;
            pstItem->s32SavedIdx = i;
        }
    }
}

// Cuts the option list at each ":" into options; what is beyond the item's options is left out.
static void osdBindOptions(const char* pcLanguage, tagITEM_NODE_S* pstItem, const tagCFG_VALUE_TXT_S& stTxt)
{
    const char* pcPiece = stTxt.acList;
    const char* pcListEnd = std::find(pcPiece, pcPiece + sizeof(stTxt.acList), '\0');
    while (pstItem->s32ValCnt < OSD_OPTION_MAX) {
        const char* pcEnd = std::find(pcPiece, pcListEnd, ':');
        const int32_t s32Option = pstItem->s32ValCnt;
        osdTextCopy(pstItem->acValueKey[s32Option], OSD_TEXT_LEN, pcPiece, static_cast<size_t>(pcEnd - pcPiece));
        (void)osdCfgTranslate(pcLanguage, pstItem->acValueKey[s32Option], pstItem->acValue[s32Option]);
        pstItem->s32ValCnt++;
        if (pcEnd == pcListEnd) {
            return;
        }
        pcPiece = pcEnd + 1;
    }
}

static void osdBindNumber(const char* pcParent, tagITEM_NODE_S* pstItem)
{
    const tagCFG_VALUE_INT_S stInt = osdBindInt(pcParent, pstItem);
    pstItem->s32Min = stInt.s32Min;
    pstItem->s32Max = stInt.s32Max;
    pstItem->s32Reserved = stInt.s32Reserved;
    pstItem->s32Step = stInt.s32Step;
    pstItem->s32Cur = stInt.s32Cur;
    pstItem->s32Saved = stInt.s32Cur;
}

static void osdBindValue(const char* pcLanguage, const char* pcParent, tagITEM_NODE_S* pstItem)
{
    if (pstItem->enValType == NUMERICAL) {
        osdBindNumber(pcParent, pstItem);
        return;
    }
    const tagCFG_VALUE_TXT_S stTxt = osdBindTxt(pcParent, pstItem->acItemIndex);
    osdBindOptions(pcLanguage, pstItem, stTxt);
    osdBindSelect(pstItem, stTxt);
}

static int osdBindButton(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (osdAttrReqText(stSet, ATTR_VALUE, pstItem->acValueKey[0]) != 0) {
        return -1;
    }
    (void)osdCfgTranslate(pcLanguage, pstItem->acValueKey[0], pstItem->acValue[0]);
    if (pstItem->enAttr == CONFIRM_POP && osdAttrReqText(stSet, ATTR_CONFIRM_PAGE, pstItem->acConfirmPage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    pstItem->s32CurIdx = 0;
    pstItem->s32SavedIdx = 0;
    pstItem->s32ValCnt = 1;
    return 0;
}

static void osdBindEditable(const char* pcParent, tagITEM_NODE_S* pstItem)
{
    const tagCFG_VALUE_TXT_S stTxt = osdBindTxt(pcParent, pstItem->acItemIndex);
    osdTextSetField(pstItem->acValue[0], stTxt.acValue);
    osdTextSetField(pstItem->acValue[1], stTxt.acValue);
}

int osdXmlFillItemParam(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItemNode)
{
    return osdValueBind(pcLanguage, osdAttrCollect(pstElem), pstItemNode);
}

int osdValueBind(char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItemNode)
{
    if (!osdContextHasValue(pstItemNode->enCtx)) {
        return 0;
    }
    const char* pcParent = osdBindParent(pstItemNode->acDataZone); // asked once, whatever the kind
    switch (pstItemNode->enAttr) {
    case CONFIRM:
    case CONFIRM_POP:
        return osdBindButton(pcLanguage, stSet, pstItemNode);
    case SUBITEM:
    case MSG_WITH_SUBITEM: // the options came from the page file
        osdBindSelect(pstItemNode, osdBindTxt(pcParent, pstItemNode->acItemIndex));
        return 0;
    case KEY_WITH_MSG:
    case COMMON:
        osdBindValue(pcLanguage, pcParent, pstItemNode);
        return 0;
    case EDITABLE:
        osdBindEditable(pcParent, pstItemNode);
        return 0;
    case STATUS:
        return osdXmlParseStatusParam(pcLanguage, pstItemNode);
    case CONST_TXT:
    case CONFIRM_POP_BTN:
    case SUBPAGE:
    case MSG_LINE:
    case TITLE_LINE:
        return 0;
    }
    return 0;
}

int osdMenuGetItemValue(tagITEM_NODE_S* pstItemNode)
{
    if (pstItemNode->enValType == NUMERICAL) {
        pstItemNode->s32Cur = osdBindInt(osdBindParent(pstItemNode->acDataZone), pstItemNode).s32Cur;
        pstItemNode->s32Saved = pstItemNode->s32Cur;
    } else if (pstItemNode->enValType == OPTTXT) {
        osdBindSelect(pstItemNode, osdBindTxt(osdBindParent(pstItemNode->acDataZone), pstItemNode->acItemIndex));
    }
    return 0;
}

void osdXmlFillEditableValue(tagITEM_NODE_S* pstItemNode)
{
    osdBindEditable(osdBindParent(pstItemNode->acDataZone), pstItemNode);
}

static void osdBindSubItems(tagITEM_NODE_S* pstItem)
{
    list_head* pstSubList = osdItemSubList(pstItem, pstItem->s32CurIdx);
    if (pstSubList == nullptr) {
        return;
    }
    for (tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
        (void)osdXmlFillItemOfSubItem(pstSub); // always 0
    }
}

int osdXmlFillItemOfSubItem(tagITEM_NODE_S* pstItemNode)
{
    if (!osdContextHasValue(pstItemNode->enCtx)) {
        return 0;
    }
    if (pstItemNode->enAttr == COMMON) {
        (void)osdMenuGetItemValue(pstItemNode); // always 0
    } else if (pstItemNode->enAttr == EDITABLE) {
        osdXmlFillEditableValue(pstItemNode);
    } else if (osdItemHasOptionLists(pstItemNode)) {
        (void)osdMenuGetItemValue(pstItemNode);
        osdBindSubItems(pstItemNode); // of the option just read
    }
    return 0;
}

int osdMenuUpdateSubItems(tagITEM_NODE_S* pstItemNode)
{
    if (!osdItemHasOptionLists(pstItemNode)) {
        return -1;
    }
    list_head* pstSubList = osdItemSubList(pstItemNode, pstItemNode->s32CurIdx);
    if (pstSubList == nullptr) {
        return 0;
    }
    for (tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
        osdTrace("[%s:%d] INDEX %s \n", OSD_PLACE, pstSub->acItemIndex);
        (void)osdXmlFillItemOfSubItem(pstSub); // always 0
    }
    return 0;
}

int osdMenuGetTxtValue(char* pcKey, char* pcDataZone, char* pcOut)
{
    const tagCFG_VALUE_TXT_S stTxt = osdBindTxt(osdBindParent(pcDataZone), pcKey);
    osdTextCopy(pcOut, sizeof(stTxt.acValue), stTxt.acValue, sizeof(stTxt.acValue));
    return 0;
}

int osdMenuGetTranslatedValue(tagITEM_NODE_S* pstItemNode, char* pcLanguage)
{
    char acValue[OSD_CFG_VALUE_LEN] = {};
    (void)osdMenuGetTxtValue(pstItemNode->acItemIndex, pstItemNode->acDataZone, acValue); // always 0
    if (osdCfgTranslate(pcLanguage, acValue, pstItemNode->acValue[0]) != 0) {
        osdTextSet(pstItemNode->acValue[0], acValue);
    }
    return 0;
}
