// Items of a page file, with the options and sub-items below them.
#include <tinyxml2.h>

#include "comm/list.h"
#include "comm/log.h"
#include "menu/core/attr.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/value_bind.h"
#include "osd_page.h"
#include "platform/config_call.h"

static int osdItemReadLabel(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    pstItem->s32ItemCnt = 1;
    (void)osdAttrInt(stSet, ATTR_ITEM_CNT, &pstItem->s32ItemCnt); // the defaults stay when these are absent
    (void)osdAttrInt(stSet, ATTR_ITEM_INDEX_ON_LINE, &pstItem->s32ItemIndexOnLine);
    if (osdAttrReqText(stSet, ATTR_ITEM_INDEX, pstItem->acItemIndex) != 0) {
        return -1;
    }
    return osdCfgTranslate(pcLanguage, pstItem->acItemIndex, pstItem->acItemName) == 0 ? 0 : -1;
}

static int osdItemReadPictures(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (osdAttrOptText(stSet, ATTR_PIC, pstItem->acPic) != 0) {
        return -1;
    }
    return ::enMenuStyle == 1 ? osdAttrOptText(stSet, ATTR_SELECT_PIC, pstItem->acSelectPic) : 0;
}

static int osdItemReadContext(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (osdAttrWord(stSet, ATTR_CTX, g_astCtxWord, &pstItem->enCtx) != 0) {
        return -1;
    }
    switch (pstItem->enCtx) {
    case NAME_IP_VAL:
        (void)osdAttrInt(stSet, ATTR_NUM_OF_CHAR, &pstItem->s32NumOfChar); // 0 when absent
        return 0;
    case ICON:
    case ICON_TXT:
    case ICON_TXT_KETH:
        return osdItemReadPictures(stSet, pstItem);
    case NAME:
    case NAME_BAR_VAL:
    case NAME_VAL:
        return 0;
    }
    return 0;
}

static int osdItemReadAttr(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (osdAttrWord(stSet, ATTR_ATTR, g_astAttrWord, &pstItem->enAttr) != 0) {
        return -1;
    }
    if (pstItem->enAttr != CONFIRM_POP_BTN) {
        return 0;
    }
    (void)osdAttrWord(stSet, ATTR_ITEM_POS, g_astItemPosWord, &pstItem->enItemPos); // left stays when absent
    if (osdAttrReqText(stSet, ATTR_CONFIRM_PAGE, pstItem->acConfirmPage) != 0) {
        return -1;
    }
    pstItem->bLine = osdAttrIsThere(stSet, ATTR_LINE) ? 1 : 0;
    return 0;
}

static void osdItemReadKinds(const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    pstItem->enValType = OPTTXT; // these two stay when absent or unknown
    (void)osdAttrWord(stSet, ATTR_VAL_TYPE, g_astValTypeWord, &pstItem->enValType);
    pstItem->enPicType = PIC_TYPE_NONE;
    (void)osdAttrWord(stSet, ATTR_PIC_TYPE, g_astPicTypeWord, &pstItem->enPicType);
    const char* pcDataZone = osdAttrValue(stSet, ATTR_DATA_ZONE);
    if (pcDataZone != nullptr) {
        osdTextSet(pstItem->acDataZone, pcDataZone); // cut at the field's end
    }
}

static void osdItemReadLiveValue(char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (!osdAttrIsThere(stSet, ATTR_SHOW_VALUE)) {
        return;
    }
    (void)osdMenuGetTranslatedValue(pstItem, pcLanguage); // always 0
    pstItem->s32ValCnt = 1;
    pstItem->bShowValue = 1;
}

static int osdItemReadMsg(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem)
{
    if (osdAttrReqText(stSet, ATTR_MSG, pstItem->acMsgKey) != 0) {
        return -1;
    }
    (void)osdCfgTranslate(pcLanguage, pstItem->acMsgKey, pstItem->acMsg); // a message without text is no failure
    return 0;
}

static int osdItemReadOption(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem,
                             int32_t s32Option)
{
    const tagATTR_SET_S stSet = osdAttrCollect(pstElem);
    if (osdAttrReqText(stSet, ATTR_MODE_INDEX, pstItem->acValueKey[s32Option]) != 0 ||
        osdCfgTranslate(pcLanguage, pstItem->acValueKey[s32Option], pstItem->acValue[s32Option]) != 0) {
        return -1;
    }
    osdListInit(&pstItem->astSubList[s32Option]);
    pstItem->s32ValCnt++; // counted first: the release of a failed item finds what is below
    const auto enLevel = static_cast<tagITEM_LEVEL_E>(pstItem->enLevel + 1);
    for (tinyxml2::XMLElement* pstSub = pstElem->FirstChildElement(); pstSub != nullptr;
         pstSub = pstSub->NextSiblingElement()) {
        if (osdXmlParseItemAttribute(pcLanguage, pstSub, enLevel, 1, 0, &pstItem->astSubList[s32Option]) != 0) {
            return -1;
        }
    }
    return 0;
}

static int osdItemReadOptions(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    int32_t s32Option = 0;
    for (tinyxml2::XMLElement* pstOption = pstElem->FirstChildElement(); pstOption != nullptr;
         pstOption = pstOption->NextSiblingElement()) {
        if (pstItem->s32ValCnt >= OSD_OPTION_MAX) {
            OSD_LOG(OSD_LOG_LEVEL_ERR, "line %d: item %s has more than %d options\n", pstOption->GetLineNum(),
                    pstItem->acItemIndex, OSD_OPTION_MAX);
            return -1;
        }
        if (osdItemReadOption(pcLanguage, pstOption, pstItem, s32Option) != 0) {
            return -1;
        }
        s32Option++;
    }
    return 0;
}

// What each attribute adds. A value that can't be bound stays empty, and the item counts all the same.
static int osdItemReadByAttr(char* pcLanguage, tinyxml2::XMLElement* pstElem, const tagATTR_SET_S& stSet,
                             tagITEM_NODE_S* pstItem)
{
    int s32Ret = 0;
    switch (pstItem->enAttr) {
    case SUBPAGE:
        return osdAttrReqText(stSet, ATTR_SUB_PAGE, pstItem->acSubPage);
    case CONST_TXT:
    case CONFIRM_POP_BTN:
    case MSG_LINE:
    case TITLE_LINE:
        return 0;
    case KEY_WITH_MSG:
        s32Ret = osdItemReadMsg(pcLanguage, stSet, pstItem);
        break;
    case MSG_WITH_SUBITEM:
        s32Ret = osdItemReadMsg(pcLanguage, stSet, pstItem);
        s32Ret = s32Ret == 0 ? osdItemReadOptions(pcLanguage, pstElem, pstItem) : s32Ret;
        break;
    case SUBITEM:
        s32Ret = osdItemReadOptions(pcLanguage, pstElem, pstItem);
        break;
    case STATUS:
    case COMMON:
    case EDITABLE:
    case CONFIRM:
    case CONFIRM_POP:
        break;
    }
    if (s32Ret == 0) {
        (void)osdValueBind(pcLanguage, stSet, pstItem);
    }
    return s32Ret;
}

static int osdItemRead(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    const tagATTR_SET_S stSet = osdAttrCollect(pstElem);
    if (osdItemReadLabel(pcLanguage, stSet, pstItem) != 0 || osdItemReadContext(stSet, pstItem) != 0 ||
        osdItemReadAttr(stSet, pstItem) != 0) {
        return -1;
    }
    osdItemReadKinds(stSet, pstItem);
    osdItemReadLiveValue(pcLanguage, stSet, pstItem);
    return osdItemReadByAttr(pcLanguage, pstElem, stSet, pstItem);
}

int osdXmlParseItemAttribute(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_LEVEL_E enLevel,
                             OSD_BOOL bSubItem, OSD_BOOL bActive, list_head* pstHead)
{
    OSD_ITEM_PTR pstItem = osdItemNew();
    if (pstItem == nullptr) {
        OSD_TRACE_FAILED();
        return -1;
    }
    pstItem->enLevel = enLevel;
    pstItem->bActive = bActive;
    pstItem->bSubItem = bSubItem;
    if (osdItemRead(pcLanguage, pstElem, pstItem.get()) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    osdListAddTail(&pstItem.release()->stNode, pstHead);
    return 0;
}
