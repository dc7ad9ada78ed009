// Items of a page file, with the options and sub-items below them.
#include <tinyxml2.h>

#include "comm/list.h"
#include "comm/log.h"
#include "menu/core/attr.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/value_bind.h"
#include "osd_menu.h"
#include "platform/config_call.h"

static int osdItemReadLabel(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    pstItem->s32ItemCnt = 1;
    (void)osdAttrInt(pstElem, "ItemCnt", &pstItem->s32ItemCnt); // the defaults stay when these are absent
    (void)osdAttrInt(pstElem, "ItemIndexOnLine", &pstItem->s32ItemIndexOnLine);
    if (osdAttrReqText(pstElem, "ItemIndex", pstItem->acItemIndex) != 0) {
        return -1;
    }
    return osdCfgTranslate(pcLanguage, pstItem->acItemIndex, pstItem->acItemName) == 0 ? 0 : -1;
}

static int osdItemReadPictures(const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    if (osdAttrOptText(pstElem, "Pic", pstItem->acPic) != 0) {
        return -1;
    }
    return ::enMenuStyle == 1 ? osdAttrOptText(pstElem, "SelectPic", pstItem->acSelectPic) : 0;
}

static int osdItemReadContext(const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    if (osdAttrWord(pstElem, "Ctx", g_astCtxWord, &pstItem->enCtx) != 0) {
        return -1;
    }
    switch (pstItem->enCtx) {
    case NAME_IP_VAL:
        (void)osdAttrInt(pstElem, "NumOfChar", &pstItem->s32NumOfChar); // 0 when absent
        return 0;
    case ICON:
    case ICON_TXT:
    case ICON_TXT_KETH:
        return osdItemReadPictures(pstElem, pstItem);
    case NAME:
    case NAME_BAR_VAL:
    case NAME_VAL:
        return 0;
    }
    return 0;
}

static int osdItemReadAttr(const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    if (osdAttrWord(pstElem, "Attr", g_astAttrWord, &pstItem->enAttr) != 0) {
        return -1;
    }
    if (pstItem->enAttr != CONFIRM_POP_BTN) {
        return 0;
    }
    (void)osdAttrWord(pstElem, "ItemPos", g_astItemPosWord, &pstItem->enItemPos); // left stays when absent
    if (osdAttrReqText(pstElem, "ConfirmPage", pstItem->acConfirmPage) != 0) {
        return -1;
    }
    pstItem->bLine = pstElem->FindAttribute("Line") != nullptr ? 1 : 0;
    return 0;
}

static void osdItemReadKinds(const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    pstItem->enValType = OPTTXT; // these two stay when absent or unknown
    (void)osdAttrWord(pstElem, "ValType", g_astValTypeWord, &pstItem->enValType);
    pstItem->enPicType = PIC_TYPE_NONE;
    (void)osdAttrWord(pstElem, "PicType", g_astPicTypeWord, &pstItem->enPicType);
    const char* pcDataZone = pstElem->Attribute("DataZone");
    if (pcDataZone != nullptr) {
        osdTextSet(pstItem->acDataZone, pcDataZone); // cut at the field's end
    }
}

static void osdItemReadLiveValue(char* pcLanguage, const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    if (pstElem->FindAttribute("ShowValue") == nullptr) {
        return;
    }
    (void)osdMenuGetTranslatedValue(pstItem, pcLanguage); // always 0
    pstItem->s32ValCnt = 1;
    pstItem->bShowValue = 1;
}

static int osdItemReadMsg(const char* pcLanguage, const tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    if (osdAttrReqText(pstElem, "Msg", pstItem->acMsgKey) != 0) {
        return -1;
    }
    (void)osdCfgTranslate(pcLanguage, pstItem->acMsgKey, pstItem->acMsg); // a message without text is no failure
    return 0;
}

static int osdItemReadOption(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem,
                             int32_t s32Option)
{
    if (osdAttrReqText(pstElem, "ModeIndex", pstItem->acValueKey[s32Option]) != 0 ||
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
static int osdItemReadByAttr(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    int s32Ret = 0;
    switch (pstItem->enAttr) {
    case SUBPAGE:
        return osdAttrReqText(pstElem, "SubPage", pstItem->acSubPage);
    case CONST_TXT:
    case CONFIRM_POP_BTN:
    case MSG_LINE:
    case TITLE_LINE:
        return 0;
    case KEY_WITH_MSG:
        s32Ret = osdItemReadMsg(pcLanguage, pstElem, pstItem);
        break;
    case MSG_WITH_SUBITEM:
        s32Ret = osdItemReadMsg(pcLanguage, pstElem, pstItem);
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
        (void)osdXmlFillItemParam(pcLanguage, pstElem, pstItem);
    }
    return s32Ret;
}

static int osdItemRead(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItem)
{
    if (pstItem->enLevel > OSD_ITEM_DEPTH_MAX) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, "line %d: items nest deeper than %d levels\n", pstElem->GetLineNum(),
                OSD_ITEM_DEPTH_MAX);
        return -1;
    }
    if (osdItemReadLabel(pcLanguage, pstElem, pstItem) != 0 || osdItemReadContext(pstElem, pstItem) != 0 ||
        osdItemReadAttr(pstElem, pstItem) != 0) {
        return -1;
    }
    osdItemReadKinds(pstElem, pstItem);
    osdItemReadLiveValue(pcLanguage, pstElem, pstItem);
    return osdItemReadByAttr(pcLanguage, pstElem, pstItem);
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
