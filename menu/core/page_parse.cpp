#include "menu/core/page_parse.h"

#include <tinyxml2.h>

#include <memory>

#include "comm/list.h"
#include "comm/log.h"
#include "comm/paths.h"
#include "menu/core/attr.h"
#include "menu/core/item_parse.h"
#include "osd_menu.h"
#include "platform/config_call.h"

static bool osdPageReadLayout(const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    if (!osdAttrReqWord(stSet, ATTR_LAYOUT, c_astLayoutWord, &pstPage->enLayout)) {
        return false;
    }
    return pstPage->enLayout != PAGE_LAYOUT_ICON || (osdAttrNeed(stSet, ATTR_COUNT_PER_LINE) &&
                                                     osdAttrInt(stSet, ATTR_COUNT_PER_LINE, &pstPage->s32CountPerLine));
}

// Reads an optional text and notes whether it is there.
static bool osdPageReadTurnText(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut, OSD_BOOL* pbThere)
{
    const tagATTR_E enAttr = osdAttrText(stSet, enId, acOut);
    *pbThere = enAttr == ATTR_READ ? 1 : 0;
    return enAttr != ATTR_TOO_LONG;
}

static bool osdPageReadTurn(const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    tagPAGE_TURN_S& stTurn = pstPage->stTurn;
    if (pstPage->enLayout != PAGE_LAYOUT_VERTICAL_KETH) {
        return true;
    }
    if (!osdPageReadTurnText(stSet, ATTR_CUR_PAGES_NUM, stTurn.acCurPagesNum, &stTurn.bCurPagesNum)) {
        return false;
    }
    return stTurn.bCurPagesNum == 0 ||
           (osdPageReadTurnText(stSet, ATTR_NEXT_PAGE, stTurn.acNextPage, &stTurn.bNextPage) &&
            osdPageReadTurnText(stSet, ATTR_PREV_PAGE, stTurn.acPrevPage, &stTurn.bPrevPage));
}

static bool osdPageReadMsg(const char* pcLanguage, const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    if (pstPage->enLayout != PAGE_LAYOUT_HORIZONTAL_KETH) {
        return true;
    }
    OSD_TEXT acMsgKey = {};
    const tagATTR_E enAttr = osdAttrText(stSet, ATTR_MSG, acMsgKey);
    if (enAttr != ATTR_READ) {
        return enAttr == ATTR_ABSENT;
    }
    return osdAttrTranslate(pcLanguage, stSet, ATTR_MSG, pstPage->acPageMsg);
}

static bool osdPageReadTitle(const char* pcLanguage, const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    const tagATTR_E enAttr = osdAttrText(stSet, ATTR_TITLE, pstPage->acTitleKey);
    if (enAttr != ATTR_READ) {
        return enAttr == ATTR_ABSENT;
    }
    if (!osdAttrTranslate(pcLanguage, stSet, ATTR_TITLE, pstPage->acTitle)) {
        return false;
    }
    pstPage->bTitle = 1;
    return osdAttrReqWord(stSet, ATTR_TITLE_POS, c_astTitlePosWord, &pstPage->enTitlePos);
}

static void osdPageReadFlags(const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    const char* pcConfirmBtn = osdAttrValue(stSet, ATTR_CONFIRM_BTN);
    pstPage->bConfirmBtn = pcConfirmBtn != nullptr && osdTextEqual(pcConfirmBtn, "Yes") ? 1 : 0;
    int32_t s32RdOnly = 0;
    osdAttrInt(stSet, ATTR_RD_ONLY, &s32RdOnly); // 0 when absent
    pstPage->bRdOnly = s32RdOnly == 1 ? 1 : 0;
}

bool osdPageReadAttributes(const char* pcLanguage, const tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage,
                           const char* pcPageName)
{
    OSD_TEXT acName;
    osdTextSet(acName, pcPageName); // the name may stand in the record itself
    *pstPage = {};
    osdListInit(&pstPage->stItemList);
    osdTextSet(pstPage->acPageName, acName);
    const tagATTR_SET_S stSet = osdAttrCollect(pstRoot);
    if (!osdPageReadLayout(stSet, pstPage) || !osdPageReadTurn(stSet, pstPage) ||
        !osdPageReadMsg(pcLanguage, stSet, pstPage) || !osdPageReadTitle(pcLanguage, stSet, pstPage)) {
        return false;
    }
    osdPageReadFlags(stSet, pstPage);
    return true;
}

static bool osdPageReadItems(const char* pcLanguage, const tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage)
{
    const tagITEM_LEVEL_E enLevel = pstPage->bTitle == 1 ? ITEM_LEVEL_UNDER_TITLE : ITEM_LEVEL_TOP;
    for (const tinyxml2::XMLElement* pstElem = pstRoot->FirstChildElement(); pstElem != nullptr;
         pstElem = pstElem->NextSiblingElement()) {
        const OSD_BOOL bActive = pstPage->s32ItemCnt == pstPage->s32SelIdx ? 1 : 0;
        if (!osdItemParse(pcLanguage, pstElem, {enLevel, 0, bActive}, &pstPage->stItemList)) {
            return false;
        }
        pstPage->s32ItemCnt++;
    }
    return true;
}

static bool osdPageReadRoot(const tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage, const char* pcPageName)
{
    OSD_TEXT acLanguage;
    if (!osdCfgLanguage(acLanguage) || !osdPageReadAttributes(acLanguage, pstRoot, pstPage, pcPageName) ||
        !osdPageReadItems(acLanguage, pstRoot, pstPage)) {
        OSD_TRACE_FAILED(OSD_MENU_ParseXml);
        return false;
    }
    return true;
}

bool osdPageParse(const char* pcPageName, tagPAGE_NODE_S* pstPage)
{
    osdListInit(&pstPage->stItemList);
    char acPath[OSD_PATH_LEN];
    osdPathBuild(acPath, OSD_DIR_MENU, pcPageName, "_page.xml");
    // a name that no page record holds belongs to no page
    const bool bFits = osdTextFits(pcPageName);
    const std::unique_ptr<tinyxml2::XMLDocument> pstDoc(bFits ? CFG_GetDocByFileName(acPath, 1) : nullptr);
    if (pstDoc == nullptr) {
        OSD_LOG(OSD_MENU_ParseXml, OSD_LOG_LEVEL_ERR, "Load %s failed\n", acPath);
        return false;
    }
    osdTrace("[%s:%d] \n", OSD_PLACE(OSD_MENU_ParseXml));
    const tinyxml2::XMLElement* pstRoot = pstDoc->FirstChildElement();
    if (pstRoot == nullptr) {
        OSD_LOG(OSD_MENU_ParseXml, OSD_LOG_LEVEL_ERR, "Acquire %s root failed\n", acPath);
        return false;
    }
    return osdPageReadRoot(pstRoot, pstPage, pcPageName);
}
