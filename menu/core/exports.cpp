// The core's C functions: each hands over to the C++ behind it.
#include "menu/core/canvas.h"

#include <cstring>

#include "menu/core/flat_list.h"
#include "menu/core/item.h"
#include "menu/core/item_parse.h"
#include "menu/core/language.h"
#include "menu/core/manager.h"
#include "menu/core/page.h"
#include "menu/core/page_parse.h"
#include "menu/core/query.h"
#include "menu/core/refresh.h"
#include "menu/core/value_bind.h"
#include "menu/core/value_status.h"
#include "menu/core/words.h"
#include "osd_page.h"
#include "osd_xml.h"

int OSD_MENU_InitOpensourceRes() { return osdLibrariesStart() ? 0 : -1; }

int OSD_MENU_InitSdkRes(tagOSD_MENU_CFG_S* pstCfg, OSD_BUSINESS_FUNC pfnBusinessFunc,
                        OSD_DATA_ZONE_FUNC pfnGetDataZoneParent)
{
    return osdManagerStart(*pstCfg, pfnBusinessFunc, pfnGetDataZoneParent) ? 0 : -1;
}

int osdMenuCalcMenuRect(SDL_Rect* pstBase, tagOSD_MENU_RECT_S* pstFrac, SDL_Rect* pstOut)
{
    *pstOut = osdMenuRect(*pstBase, *pstFrac);
    return 0;
}

int osdMenuCalcPopRect(SDL_Rect* pstMenu, SDL_Rect* pstOut)
{
    *pstOut = osdPopRect(*pstMenu);
    return 0;
}

int osdMenuCalcPopWithMsgRect(SDL_Rect* pstMenu, SDL_Rect* pstOut)
{
    *pstOut = osdPopMsgRect(*pstMenu);
    return 0;
}

int osdMenuCreatSurface(tagOSD_MENU_MGR_S* pstMgr) { return osdManagerOpen(pstMgr) ? 0 : -1; }

int Osd_GetVersionCallback(OSD_GET_FUNC pfnGet, void* pvUser)
{
    gs_OsdHandler = {pfnGet, pvUser};
    return 0;
}

tagOSD_HANDLER_S* OsdMenuGetHandler() { return &gs_OsdHandler; }

int OSD_MENU_RenderCanvas() { return osdCanvasRender() ? 0 : -1; }

int OSD_MENU_UpdateCanvas(OSD_BOOL bShow, OSD_ATTACH_INFO_S* pstAttach)
{
    osdCanvasUpdate(bShow, pstAttach);
    return 0;
}

OSD_BOOL OSD_MENU_GetMenuStatus() { return gstPageMgr.s32PageCnt > 0 ? 1 : 0; }

OSD_BOOL OSD_Menu_HasSubPage()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    return pstPage == nullptr || osdQueryOpensPage(pstPage) ? 1 : 0;
}

OSD_BOOL OSD_MENU_HasSubPageWithOutIcon()
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    return pstPage != nullptr && pstPage->enLayout != PAGE_LAYOUT_ICON && osdQueryOpensPage(pstPage) ? 1 : 0;
}

OSD_BOOL osdXmlIsInNetworkPage() { return osdQueryPage(OSD_PAGE_NETWORK) != nullptr ? 1 : 0; }
OSD_BOOL osdXmlIsOnOfViewFollowExposure() { return osdQueryIsOn(OSD_PAGE_EXPOSURE, OSD_KEY_VIEW_EXPOSURE) ? 1 : 0; }
OSD_BOOL osdXmlIsOnOfViewFollowWB() { return osdQueryIsOn(OSD_PAGE_WBLANCE, OSD_KEY_VIEW_WB) ? 1 : 0; }

int OSD_MENU_RefreshCurrentPage() { return osdRefreshPageFile() ? 0 : -1; }

int OSD_MENU_RefreshItem(char* pcItemIndex)
{
    osdRefreshKey(pcItemIndex);
    return 0;
}

int OSD_MENU_RefreshPage()
{
    osdRefreshPage();
    return 0;
}

int OSD_MENU_ParseXml(char* pcPageName, tagPAGE_NODE_S* pstPage) { return osdPageParse(pcPageName, pstPage) ? 0 : -1; }

int osdXmlParsePageAttribute(char* pcLanguage, tinyxml2::XMLElement* pstRoot, tagPAGE_NODE_S* pstPage, char* pcPageName)
{
    return osdPageReadAttributes(pcLanguage, pstRoot, pstPage, pcPageName) ? 0 : -1;
}

int osdXmlParseItemAttribute(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_LEVEL_E enLevel,
                             OSD_BOOL bSubItem, OSD_BOOL bActive, list_head* pstHead)
{
    return osdItemParse(pcLanguage, pstElem, {enLevel, bSubItem, bActive}, pstHead) ? 0 : -1;
}

int osdXmlFillItemParam(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItemNode)
{
    return osdValueBind(pcLanguage, osdAttrCollect(pstElem), pstItemNode) ? 0 : -1;
}

tagPAGE_NODE_S* osdXmlGetCurPage() { return osdPageTop(); }

tagPAGE_NODE_S* osdMenuGetPrevPage(tagPAGE_NODE_S* pstPage) { return osdPageBelow(pstPage); }

int osdMenuReleaseSinglePage()
{
    osdPagePop();
    return 0;
}

int osdMenuReparseParamByLang() { return osdLanguageTranslateAll() ? 0 : -1; }

int osdMenuReplaceItemLang(char* pcLanguage, tagITEM_NODE_S* pstItemNode)
{
    osdLanguageItem(pcLanguage, pstItemNode);
    return 0;
}

int osdMenuReleaseItem(tagITEM_NODE_S* pstItemNode)
{
    osdItemRelease(pstItemNode);
    return 0;
}

OSD_BOOL osdMenuHasSubItem(tagITEM_NODE_S* pstItemNode) { return osdItemHasSubItems(pstItemNode) ? 1 : 0; }

int osdMenuInsertItems2TmpList(tagITEM_NODE_S* pstItemNode, list_head* pstHead)
{
    osdFlatAppend(pstItemNode, pstHead);
    return 0;
}

tagITEM_NODE_S* osdMenuGetSelectedItem(tagPAGE_NODE_S* pstPage) { return osdPageSelected(pstPage); }

OSD_BOOL osdMenuIsSubItemSelected(tagITEM_NODE_S* pstItemNode) { return osdItemSubSelected(pstItemNode) ? 1 : 0; }

int osdXmlParseStatusParam(char* pcLanguage, tagITEM_NODE_S* pstItemNode)
{
    osdStatusRead(pcLanguage, pstItemNode);
    return 0;
}

int osdMenuGetItemValue(tagITEM_NODE_S* pstItemNode)
{
    osdValueRead(pstItemNode);
    return 0;
}

void osdXmlFillEditableValue(tagITEM_NODE_S* pstItemNode) { osdValueReadAddress(pstItemNode); }

int osdXmlFillItemOfSubItem(tagITEM_NODE_S* pstItemNode)
{
    osdValueReadSubItem(pstItemNode);
    return 0;
}

int osdMenuUpdateSubItems(tagITEM_NODE_S* pstItemNode) { return osdValueReadSubItems(pstItemNode) ? 0 : -1; }

int osdMenuGetTxtValue(char* pcKey, char* pcDataZone, char* pcOut)
{
    const tagVALUE_TEXT_S stText = osdValueText(pcKey, pcDataZone);
    memcpy(pcOut, stText.acText, sizeof(stText.acText));
    return 0;
}

int osdMenuGetTranslatedValue(tagITEM_NODE_S* pstItemNode, char* pcLanguage)
{
    osdValueTranslated(pcLanguage, pstItemNode);
    return 0;
}
