#include "menu/core/item_parse.h"

#include "comm/list.h"
#include "comm/log.h"
#include "menu/core/attr.h"
#include "menu/core/item.h"
#include "menu/core/value_bind.h"
#include "osd_menu.h"
#include "osd_xml.h"

static bool osdItemReadLabel(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    pstItem->s32ItemCnt = 1;
    osdAttrInt(stSet, ATTR_ITEM_CNT, &pstItem->s32ItemCnt); // the defaults stay when these are absent
    osdAttrInt(stSet, ATTR_ITEM_INDEX_ON_LINE, &pstItem->s32ItemIndexOnLine);
    if (!osdAttrReqText(stSet, ATTR_ITEM_INDEX, pstItem->acItemIndex)) {
        return false;
    }
    return osdAttrTranslate(pcLanguage, stSet, ATTR_ITEM_INDEX, pstItem->acItemName);
}

static bool osdItemReadPictures(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrOptText(stSet, ATTR_PIC, pstItem->acPic)) {
        return false;
    }
    return ::enMenuStyle == 1 ? osdAttrOptText(stSet, ATTR_SELECT_PIC, pstItem->acSelectPic) : true;
}

static bool osdItemReadContext(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrReqWord(stSet, ATTR_CTX, c_astCtxWord, &pstItem->enCtx)) {
        return false;
    }
    switch (pstItem->enCtx) {
    case NAME_IP_VAL:
        osdAttrInt(stSet, ATTR_NUM_OF_CHAR, &pstItem->s32NumOfChar); // 0 when absent
        return true;
    case ICON:
    case ICON_TXT:
    case ICON_TXT_KETH:
        return osdItemReadPictures(stSet, pstItem);
    case NAME:
    case NAME_BAR_VAL:
    case NAME_VAL:
        return true;
    }
    return true;
}

static bool osdItemReadAttr(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrReqWord(stSet, ATTR_ATTR, c_astAttrWord, &pstItem->enAttr)) {
        return false;
    }
    if (pstItem->enAttr != CONFIRM_POP_BTN) {
        return true;
    }
    osdAttrWord(stSet, ATTR_ITEM_POS, c_astItemPosWord, &pstItem->enItemPos); // left stays when absent
    if (!osdAttrReqText(stSet, ATTR_CONFIRM_PAGE, pstItem->acConfirmPage)) {
        return false;
    }
    pstItem->bLine = osdAttrIsThere(stSet, ATTR_LINE) ? 1 : 0;
    return true;
}

static void osdItemReadKinds(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    pstItem->enValType = OPTTXT; // these two stay when absent or unknown
    osdAttrWord(stSet, ATTR_VAL_TYPE, c_astValTypeWord, &pstItem->enValType);
    pstItem->enPicType = PIC_TYPE_NONE;
    osdAttrWord(stSet, ATTR_PIC_TYPE, c_astPicTypeWord, &pstItem->enPicType);
    const char* pcDataZone = osdAttrValue(stSet, ATTR_DATA_ZONE);
    if (pcDataZone != nullptr) {
        osdTextSet(pstItem->acDataZone, pcDataZone); // cut at the field's end
    }
}

static void osdItemReadLiveValue(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrIsThere(stSet, ATTR_SHOW_VALUE)) {
        return;
    }
    osdValueTranslated(pcLanguage, pstItem);
    pstItem->s32ValCnt = 1;
    pstItem->bShowValue = 1;
}

static bool osdItemReadMsg(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrReqText(stSet, ATTR_MSG, pstItem->acMsgKey)) {
        return false;
    }
    osdAttrTranslate(pcLanguage, stSet, ATTR_MSG, pstItem->acMsg); // a message without text is no failure
    return true;
}

static bool osdItemReadOption(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem,
                              int32_t s32Option)
{
    const tagATTR_SET_S stSet = osdAttrCollect(pstElem);
    if (!osdAttrReqText(stSet, ATTR_MODE_INDEX, pstItem->acValueKey[s32Option]) ||
        !osdAttrTranslate(pcLanguage, stSet, ATTR_MODE_INDEX, pstItem->acValue[s32Option])) {
        return false;
    }
    osdListInit(&pstItem->astSubList[s32Option]);
    pstItem->s32ValCnt++; // counted first: the release of a failed item finds what is below
    const auto enLevel = static_cast<tagITEM_LEVEL_E>(pstItem->enLevel + 1);
    for (const tinyxml2::XMLElement* pstSub = pstElem->FirstChildElement(); pstSub != nullptr;
         pstSub = pstSub->NextSiblingElement()) {
        if (!osdItemParse(pcLanguage, pstSub, {enLevel, 1, 0}, &pstItem->astSubList[s32Option])) {
            return false;
        }
    }
    return true;
}

static bool osdItemReadOptions(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    int32_t s32Option = 0;
    for (const tinyxml2::XMLElement* pstOption = pstElem->FirstChildElement(); pstOption != nullptr;
         pstOption = pstOption->NextSiblingElement()) {
        if (pstItem->s32ValCnt >= OSD_OPTION_MAX) {
            osdPageFault({PAGE_FAULT_OPTIONS, pstOption, osdAttrName(ATTR_ITEM_INDEX), pstItem->acItemIndex});
            return false;
        }
        if (!osdItemReadOption(pcLanguage, pstOption, pstItem, s32Option)) {
            return false;
        }
        s32Option++;
    }
    return true;
}

// What each attribute adds. A value that can't be bound stays empty, and the item counts all the same.
static bool osdItemReadByAttr(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, const tagATTR_SET_S& stSet,
                              tagITEM_NODE_S* pstItem)
{
    bool bRead = true;
    switch (pstItem->enAttr) {
    case SUBPAGE:
        return osdAttrReqText(stSet, ATTR_SUB_PAGE, pstItem->acSubPage);
    case CONST_TXT:
    case CONFIRM_POP_BTN:
    case MSG_LINE:
    case TITLE_LINE:
        return true;
    case KEY_WITH_MSG:
        bRead = osdItemReadMsg(pcLanguage, stSet, pstItem);
        break;
    case MSG_WITH_SUBITEM:
        bRead = osdItemReadMsg(pcLanguage, stSet, pstItem) && osdItemReadOptions(pcLanguage, pstElem, pstItem);
        break;
    case SUBITEM:
        bRead = osdItemReadOptions(pcLanguage, pstElem, pstItem);
        break;
    case STATUS:
    case COMMON:
    case EDITABLE:
    case CONFIRM:
    case CONFIRM_POP:
        break;
    }
    if (bRead) {
        osdValueBind(pcLanguage, stSet, pstItem);
    }
    return bRead;
}

static bool osdItemRead(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    const tagATTR_SET_S stSet = osdAttrCollect(pstElem);
    if (!osdItemReadLabel(pcLanguage, stSet, pstItem) || !osdItemReadContext(stSet, pstItem) ||
        !osdItemReadAttr(stSet, pstItem)) {
        return false;
    }
    osdItemReadKinds(stSet, pstItem);
    osdItemReadLiveValue(pcLanguage, stSet, pstItem);
    return osdItemReadByAttr(pcLanguage, pstElem, stSet, pstItem);
}

bool osdItemParse(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, const tagITEM_PLACE_S& stPlace,
                  list_head* pstHead)
{
    OSD_ITEM_PTR pstItem = osdItemNew();
    if (pstItem == nullptr) {
        OSD_TRACE_FAILED(osdXmlParseItemAttribute);
        return false;
    }
    pstItem->enLevel = stPlace.enLevel;
    pstItem->bSubItem = stPlace.bSubItem;
    pstItem->bActive = stPlace.bActive;
    if (!osdItemRead(pcLanguage, pstElem, pstItem.get())) {
        OSD_TRACE_FAILED(osdXmlParseItemAttribute);
        return false;
    }
    osdListAddTail(&pstItem.release()->stNode, pstHead);
    return true;
}
