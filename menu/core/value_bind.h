// Values of items: first binding while a page is parsed, and reading again.
#pragma once

#include "menu/core/attr.h"
#include "osd_menu.h"
#include "platform/config_service.h"

// Whether an item of this context carries a bound value.
inline bool osdContextHasValue(tagITEM_CTX_E enCtx)
{
    return enCtx == NAME_BAR_VAL || enCtx == NAME_VAL || enCtx == NAME_IP_VAL;
}

// The binding of osdXmlFillItemParam, for an element whose attributes have been collected.
int osdValueBind(char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItemNode);

extern "C" {
// Binds a new item. Returns -1 when Value or ConfirmPage of a button is missing, else 0.
OSD_API int osdXmlFillItemParam(char* pcLanguage, tinyxml2::XMLElement* pstElem, tagITEM_NODE_S* pstItemNode);

// Fills a STATUS item's text from its source; empty where there is none. Returns 0.
OSD_API int osdXmlParseStatusParam(char* pcLanguage, tagITEM_NODE_S* pstItemNode);

// Reads the current value of a numeric or option item again. Returns 0.
OSD_API int osdMenuGetItemValue(tagITEM_NODE_S* pstItemNode);

// Reads the text of an EDITABLE item again.
OSD_API void osdXmlFillEditableValue(tagITEM_NODE_S* pstItemNode);

// Reads a sub-item and all below it again. Returns 0.
OSD_API int osdXmlFillItemOfSubItem(tagITEM_NODE_S* pstItemNode);

// Reads the sub-items of the current option again. Returns 0, or -1 on an item that can't have any.
OSD_API int osdMenuUpdateSubItems(tagITEM_NODE_S* pstItemNode);

// Reads one value text; pcOut has 16 bytes at least. Returns 0.
OSD_API int osdMenuGetTxtValue(char* pcKey, char* pcDataZone, char* pcOut);

// Reads the item's value text into acValue[0], translated where a translation exists. Returns 0.
OSD_API int osdMenuGetTranslatedValue(tagITEM_NODE_S* pstItemNode, char* pcLanguage);
}
