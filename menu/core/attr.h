// Attributes of a page file's element. What is absent leaves the value alone.
#pragma once

#include <tinyxml2.h>

#include "menu/core/keyword.h"
#include "menu/core/page_fault.h"

// Every attribute that a page file can give, in the order of their names.
enum tagATTR_ID_E : int32_t {
    ATTR_ATTR,
    ATTR_CONFIRM_BTN,
    ATTR_CONFIRM_PAGE,
    ATTR_COUNT_PER_LINE,
    ATTR_CTX,
    ATTR_CUR_PAGES_NUM,
    ATTR_DATA_ZONE,
    ATTR_ITEM_CNT,
    ATTR_ITEM_INDEX,
    ATTR_ITEM_INDEX_ON_LINE,
    ATTR_ITEM_POS,
    ATTR_LAYOUT,
    ATTR_LINE,
    ATTR_MODE_INDEX,
    ATTR_MSG,
    ATTR_NEXT_PAGE,
    ATTR_NUM_OF_CHAR,
    ATTR_PIC,
    ATTR_PIC_TYPE,
    ATTR_PREV_PAGE,
    ATTR_RD_ONLY,
    ATTR_SELECT_PIC,
    ATTR_SHOW_VALUE,
    ATTR_SUB_PAGE,
    ATTR_TITLE,
    ATTR_TITLE_POS,
    ATTR_VAL_TYPE,
    ATTR_VALUE,
    ATTR_ID_CNT,
};

// The attributes of one element, found in one walk: an item asks for more of them than it has.
struct tagATTR_SET_S {
    const tinyxml2::XMLElement* pstElem;
    const tinyxml2::XMLAttribute* apstAttr[ATTR_ID_CNT]; // null where absent
};

// The name of an attribute in a page file.
const char* osdAttrName(tagATTR_ID_E enId);

// The number of a name, or ATTR_ID_CNT for a name that means nothing here.
size_t osdAttrId(const char* pcName);

// Without an element every attribute is absent.
tagATTR_SET_S osdAttrCollect(const tinyxml2::XMLElement* pstElem);

inline bool osdAttrIsThere(const tagATTR_SET_S& stSet, tagATTR_ID_E enId) { return stSet.apstAttr[enId] != nullptr; }

// A text, or null when it is absent.
inline const char* osdAttrValue(const tagATTR_SET_S& stSet, tagATTR_ID_E enId)
{
    return osdAttrIsThere(stSet, enId) ? stSet.apstAttr[enId]->Value() : nullptr;
}

// Tells what is wrong with an attribute.
void osdAttrFault(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, tagPAGE_FAULT_E enFault);

// Tells of an attribute that isn't there; false where it is missing.
inline bool osdAttrNeed(const tagATTR_SET_S& stSet, tagATTR_ID_E enId)
{
    if (!osdAttrIsThere(stSet, enId)) {
        osdAttrFault(stSet, enId, PAGE_FAULT_ABSENT);
        return false;
    }
    return true;
}

enum tagATTR_E : int32_t {
    ATTR_READ,
    ATTR_ABSENT,
    ATTR_TOO_LONG, // more than a field holds
};

// A text, refused as a whole when it doesn't fit its field.
tagATTR_E osdAttrText(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut);

// A text that may be absent: false only when it is too long.
inline bool osdAttrOptText(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut)
{
    return osdAttrText(stSet, enId, acOut) != ATTR_TOO_LONG;
}

// A text that must be there: false when it is absent or too long.
inline bool osdAttrReqText(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut)
{
    return osdAttrNeed(stSet, enId) && osdAttrText(stSet, enId, acOut) == ATTR_READ;
}

// An integer; false when it is absent or none, and *ps32Out is left alone.
bool osdAttrInt(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, int32_t* ps32Out);

// A word of a table; false when it is absent or not in the table, and *penOut is left alone.
template <typename E, size_t N>
bool osdAttrWord(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, const tagKEYWORD_S<E> (&astWord)[N], E* penOut)
{
    if (!osdAttrIsThere(stSet, enId)) {
        return false;
    }
    if (!osdKeywordFind(astWord, stSet.apstAttr[enId]->Value(), penOut)) {
        osdAttrFault(stSet, enId, PAGE_FAULT_WORD);
        return false;
    }
    return true;
}

// A word that must be there.
template <typename E, size_t N>
bool osdAttrReqWord(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, const tagKEYWORD_S<E> (&astWord)[N], E* penOut)
{
    return osdAttrNeed(stSet, enId) && osdAttrWord(stSet, enId, astWord, penOut);
}

// The translation of the key that an attribute holds; false when the language has none.
bool osdAttrTranslate(const char* pcLanguage, const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut);
