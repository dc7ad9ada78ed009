#include "menu/core/page_parse.h"

#include <tinyxml2.h>

#include <memory>

#include "comm/list.h"
#include "comm/log.h"
#include "comm/paths.h"
#include "menu/core/attr.h"
#include "osd_page.h"
#include "platform/config_call.h"

static int osdPageReadLayout(const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    if (osdAttrWord(stSet, ATTR_LAYOUT, g_astLayoutWord, &pstPage->enLayout) != 0) {
        return -1;
    }
    return pstPage->enLayout == PAGE_LAYOUT_ICON ? osdAttrInt(stSet, ATTR_COUNT_PER_LINE, &pstPage->s32CountPerLine)
                                                 : 0;
}

// Reads an optional text and notes whether it is there.
static int osdPageReadTurnText(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, char (&acOut)[OSD_TEXT_LEN],
                               OSD_BOOL* pbThere)
{
    const tagATTR_E enAttr = osdAttrText(stSet, enId, acOut);
    *pbThere = enAttr == ATTR_READ ? 1 : 0;
    return enAttr == ATTR_TOO_LONG ? -1 : 0;
}

static int osdPageReadTurn(const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    tagPAGE_TURN_S& stTurn = pstPage->stTurn;
    if (pstPage->enLayout != PAGE_LAYOUT_VERTICAL_KETH) {
        return 0;
    }
    if (osdPageReadTurnText(stSet, ATTR_CUR_PAGES_NUM, stTurn.acCurPagesNum, &stTurn.bCurPagesNum) != 0) {
        return -1;
    }
    if (stTurn.bCurPagesNum == 0) {
        return 0;
    }
    if (osdPageReadTurnText(stSet, ATTR_NEXT_PAGE, stTurn.acNextPage, &stTurn.bNextPage) != 0) {
        return -1;
    }
    return osdPageReadTurnText(stSet, ATTR_PREV_PAGE, stTurn.acPrevPage, &stTurn.bPrevPage);
}

static int osdPageReadMsg(const char* pcLanguage, const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    if (pstPage->enLayout != PAGE_LAYOUT_HORIZONTAL_KETH) {
        return 0;
    }
    char acMsgKey[OSD_TEXT_LEN] = {};
    const tagATTR_E enAttr = osdAttrText(stSet, ATTR_MSG, acMsgKey);
    if (enAttr != ATTR_READ) {
        return enAttr == ATTR_ABSENT ? 0 : -1;
    }
    return osdCfgTranslate(pcLanguage, acMsgKey, pstPage->acPageMsg) == 0 ? 0 : -1;
}

static int osdPageReadTitle(const char* pcLanguage, const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    const tagATTR_E enAttr = osdAttrText(stSet, ATTR_TITLE, pstPage->acTitleKey);
    if (enAttr != ATTR_READ) {
        return enAttr == ATTR_ABSENT ? 0 : -1;
    }
    if (osdCfgTranslate(pcLanguage, pstPage->acTitleKey, pstPage->acTitle) != 0) {
        return -1;
    }
    pstPage->bTitle = 1;
    return osdAttrWord(stSet, ATTR_TITLE_POS, g_astTitlePosWord, &pstPage->enTitlePos);
}

static void osdPageReadFlags(const tagATTR_SET_S& stSet, tagPAGE_NODE_S* pstPage)
{
    const char* pcConfirmBtn = osdAttrValue(stSet, ATTR_CONFIRM_BTN);
    pstPage->bConfirmBtn = pcConfirmBtn != nullptr && osdTextEqual(pcConfirmBtn, "Yes") ? 1 : 0;
    int32_t s32RdOnly = 0;
    (void)osdAttrInt(stSet, ATTR_RD_ONLY, &s32RdOnly); // 0 when absent
    pstPage->bRdOnly = s32RdOnly == 1 ? 1 : 0;
}

static int osdPageReadAttributes(const char* pcLanguage, const tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage,
                                 const char* pcPageName)
{
    char acName[OSD_TEXT_LEN];
    osdTextSet(acName, pcPageName); // the name may stand in the record itself
    *pstPage = {};
    osdListInit(&pstPage->stItemList);
    osdTextSet(pstPage->acPageName, acName);
    const tagATTR_SET_S stSet = osdAttrCollect(pstRoot);
    if (osdPageReadLayout(stSet, pstPage) != 0 || osdPageReadTurn(stSet, pstPage) != 0 ||
        osdPageReadMsg(pcLanguage, stSet, pstPage) != 0 || osdPageReadTitle(pcLanguage, stSet, pstPage) != 0) {
        return -1;
    }
    osdPageReadFlags(stSet, pstPage);
    return 0;
}

int osdXmlParsePageAttribute(char* pcLanguage, tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage, char* pcPageName)
{
    return osdPageReadAttributes(pcLanguage, pstRoot, pstPage, pcPageName);
}

static int osdPageReadItems(char* pcLanguage, tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage)
{
    const tagITEM_LEVEL_E enLevel = pstPage->bTitle == 1 ? ITEM_LEVEL_UNDER_TITLE : ITEM_LEVEL_TOP;
    for (tinyxml2::XMLElement* pstElem = pstRoot->FirstChildElement(); pstElem != nullptr;
         pstElem = pstElem->NextSiblingElement()) {
        const OSD_BOOL bActive = pstPage->s32ItemCnt == pstPage->s32SelIdx ? 1 : 0;
        if (osdXmlParseItemAttribute(pcLanguage, pstElem, enLevel, 0, bActive, &pstPage->stItemList) != 0) {
            return -1;
        }
        pstPage->s32ItemCnt++;
    }
    return 0;
}

static int osdPageReadRoot(tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage, const char* pcPageName)
{
    char acLanguage[OSD_TEXT_LEN];
    if (osdCfgLanguage(acLanguage) != 0 || osdPageReadAttributes(acLanguage, pstRoot, pstPage, pcPageName) != 0 ||
        osdPageReadItems(acLanguage, pstRoot, pstPage) != 0) {
        OSD_TRACE_FAILED();
        return -1;
    }
    return 0;
}

int osdPageParse(const char* pcPageName, tagPAGE_NODE_S* pstPage)
{
    osdListInit(&pstPage->stItemList);
    char acPath[OSD_PATH_LEN];
    osdPathBuild(acPath, OSD_DIR_MENU, pcPageName, "_page.xml");
    // a name that no page record holds belongs to no page
    const bool bFits = osdTextFits(pcPageName);
    const std::unique_ptr<tinyxml2::XMLDocument> pstDoc(bFits ? CFG_GetDocByFileName(acPath, 1) : nullptr);
    if (pstDoc == nullptr) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, "Load %s failed\n", acPath);
        return -1;
    }
    osdTrace("[%s:%d] \n", OSD_PLACE);
    tinyxml2::XMLElement* pstRoot = pstDoc->FirstChildElement();
    if (pstRoot == nullptr) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, "Acquire %s root failed\n", acPath);
        return -1;
    }
    return osdPageReadRoot(pstRoot, pstPage, pcPageName);
}

int OSD_MENU_ParseXml(char* pcPageName, tagPAGE_NODE_S* pstPage) { return osdPageParse(pcPageName, pstPage); }
