#include "menu/core/value_bind.h"

#include <algorithm>

#include "comm/log.h"
#include "menu/core/item.h"
#include "menu/core/item_walk.h"
#include "menu/core/led_color.h"
#include "menu/core/value_status.h"
#include "osd_page.h"
#include "osd_xml.h"
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
    OSD_TEXT acValue;
    osdTextSetField(acValue, stTxt.acValue);
    const int32_t s32Cnt = osdItemOptionCnt(pstItem);
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
        osdCfgTranslate(pcLanguage, pstItem->acValueKey[s32Option], pstItem->acValue[s32Option]);
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

static void osdBindAddress(const char* pcParent, tagITEM_NODE_S* pstItem)
{
    const tagCFG_VALUE_TXT_S stTxt = osdBindTxt(pcParent, pstItem->acItemIndex);
    osdTextSetField(pstItem->acValue[0], stTxt.acValue);
    osdTextSetField(pstItem->acValue[1], stTxt.acValue);
}

static bool osdBindButton(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrReqText(stSet, ATTR_VALUE, pstItem->acValueKey[0])) {
        return false;
    }
    osdAttrTranslate(pcLanguage, stSet, ATTR_VALUE, pstItem->acValue[0]); // without a translation the button is empty
    if (pstItem->enAttr == CONFIRM_POP && !osdAttrReqText(stSet, ATTR_CONFIRM_PAGE, pstItem->acConfirmPage)) {
        OSD_TRACE_FAILED(osdXmlFillItemParam);
        return false;
    }
    pstItem->s32CurIdx = 0;
    pstItem->s32SavedIdx = 0;
    pstItem->s32ValCnt = 1;
    return true;
}

bool osdValueBind(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdItemHasValue(pstItem)) {
        return true;
    }
    const char* pcParent = osdBindParent(pstItem->acDataZone); // asked once, whatever the kind
    switch (pstItem->enAttr) {
    case CONFIRM:
    case CONFIRM_POP:
        return osdBindButton(pcLanguage, stSet, pstItem);
    case SUBITEM:
    case MSG_WITH_SUBITEM: // the options came from the page file
        osdBindSelect(pstItem, osdBindTxt(pcParent, pstItem->acItemIndex));
        break;
    case KEY_WITH_MSG:
    case COMMON:
        osdBindValue(pcLanguage, pcParent, pstItem);
        break;
    case EDITABLE:
        osdBindAddress(pcParent, pstItem);
        break;
    case STATUS:
        osdStatusRead(pcLanguage, pstItem);
        break;
    case CONST_TXT:
    case CONFIRM_POP_BTN:
    case SUBPAGE:
    case MSG_LINE:
    case TITLE_LINE:
        break;
    }
    return true;
}

void osdValueRead(tagITEM_NODE_S* pstItem)
{
    if (pstItem->enValType == NUMERICAL) {
        pstItem->s32Cur = osdBindInt(osdBindParent(pstItem->acDataZone), pstItem).s32Cur;
        pstItem->s32Saved = pstItem->s32Cur;
    } else if (pstItem->enValType == OPTTXT) {
        osdBindSelect(pstItem, osdBindTxt(osdBindParent(pstItem->acDataZone), pstItem->acItemIndex));
    }
}

void osdValueReadAddress(tagITEM_NODE_S* pstItem) { osdBindAddress(osdBindParent(pstItem->acDataZone), pstItem); }

void osdValueReadSubItem(tagITEM_NODE_S* pstItem)
{
    if (!osdItemHasValue(pstItem)) {
        return;
    }
    if (pstItem->enAttr == COMMON) {
        osdValueRead(pstItem);
    } else if (pstItem->enAttr == EDITABLE) {
        osdValueReadAddress(pstItem);
    } else if (osdItemHasOptionLists(pstItem)) {
        osdValueRead(pstItem);
        list_head* pstSubList = osdItemSubList(pstItem, pstItem->s32CurIdx); // of the option just read
        if (pstSubList != nullptr) {
            for (tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
                osdValueReadSubItem(pstSub);
            }
        }
    }
}

bool osdValueReadSubItems(tagITEM_NODE_S* pstItem)
{
    list_head* pstSubList = osdItemSubList(pstItem, pstItem->s32CurIdx);
    if (pstSubList != nullptr) {
        for (tagITEM_NODE_S* pstSub : osdItems(pstSubList)) {
            osdTrace("[%s:%d] INDEX %s \n", OSD_PLACE(osdMenuUpdateSubItems), pstSub->acItemIndex);
            osdValueReadSubItem(pstSub);
        }
    }
    return osdItemHasOptionLists(pstItem);
}

tagVALUE_TEXT_S osdValueText(const char* pcKey, const char* pcDataZone)
{
    tagVALUE_TEXT_S stText = {};
    osdTextSetField(stText.acText, osdBindTxt(osdBindParent(pcDataZone), pcKey).acValue);
    return stText;
}

void osdValueTranslated(const char* pcLanguage, tagITEM_NODE_S* pstItem)
{
    const tagVALUE_TEXT_S stText = osdValueText(pstItem->acItemIndex, pstItem->acDataZone);
    if (!osdCfgTranslate(pcLanguage, stText.acText, pstItem->acValue[0])) {
        osdTextSet(pstItem->acValue[0], stText.acText);
    }
}
