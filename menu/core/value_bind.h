// Values of items: first binding while a page is parsed, and reading again.
#pragma once

#include "menu/core/attr.h"
#include "osd_page.h"
#include "osd_xml.h"
#include "platform/config_service.h"

// Whether an item of this context carries a bound value.
inline bool osdContextHasValue(tagITEM_CTX_E enCtx)
{
    return enCtx == NAME_BAR_VAL || enCtx == NAME_VAL || enCtx == NAME_IP_VAL;
}

// The binding of osdXmlFillItemParam, for an element whose attributes have been collected.
int osdValueBind(char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItemNode);
