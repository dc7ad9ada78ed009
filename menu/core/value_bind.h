// Values of items: first binding while a page is parsed, and reading again.
#pragma once

#include "menu/core/attr.h"

// The binding of osdXmlFillItemParam, for an element whose attributes have been collected.
bool osdValueBind(const char* pcLanguage, const tagATTR_SET_S& stSet, tagITEM_NODE_S* pstItem);

// Reads the current value of a numeric or option item again.
void osdValueRead(tagITEM_NODE_S* pstItem);

// Reads the text of an EDITABLE item again.
void osdValueReadAddress(tagITEM_NODE_S* pstItem);

// Reads a sub-item and all below it again.
void osdValueReadSubItem(tagITEM_NODE_S* pstItem);

// Reads the sub-items of the current option again; false on an item that can't have any.
bool osdValueReadSubItems(tagITEM_NODE_S* pstItem);

// One value text, with its end.
struct tagVALUE_TEXT_S {
    char acText[OSD_CFG_VALUE_LEN];
};
tagVALUE_TEXT_S osdValueText(const char* pcKey, const char* pcDataZone);

// Reads the item's value text into acValue[0], translated where a translation exists.
void osdValueTranslated(const char* pcLanguage, tagITEM_NODE_S* pstItem);
