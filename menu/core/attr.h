// Attributes of a page file's element. What is absent leaves the value alone.
#pragma once

#include <tinyxml2.h>

#include "menu/core/keyword.h"

enum tagATTR_E : int32_t {
    ATTR_READ,
    ATTR_ABSENT,
    ATTR_TOO_LONG, // more than a field holds; said in the log with line and length
};

// A text, refused as a whole when it doesn't fit its field.
tagATTR_E osdAttrText(const tinyxml2::XMLElement* pstElem, const char* pcName, char (&acOut)[OSD_TEXT_LEN]);

// A text that may be absent: -1 only when it is too long.
inline int osdAttrOptText(const tinyxml2::XMLElement* pstElem, const char* pcName, char (&acOut)[OSD_TEXT_LEN])
{
    return osdAttrText(pstElem, pcName, acOut) == ATTR_TOO_LONG ? -1 : 0;
}

// A text that must be there: -1 when it is absent or too long.
inline int osdAttrReqText(const tinyxml2::XMLElement* pstElem, const char* pcName, char (&acOut)[OSD_TEXT_LEN])
{
    return osdAttrText(pstElem, pcName, acOut) == ATTR_READ ? 0 : -1;
}

// An integer; -1 when it is absent or none, and *ps32Out is left alone.
inline int osdAttrInt(const tinyxml2::XMLElement* pstElem, const char* pcName, int32_t* ps32Out)
{
    const tinyxml2::XMLAttribute* pstAttr = pstElem->FindAttribute(pcName);
    return pstAttr != nullptr && pstAttr->QueryIntValue(ps32Out) == tinyxml2::XML_SUCCESS ? 0 : -1;
}

// A word of a table; -1 when it is absent or not in the table, and *penOut is left alone.
template <typename E, size_t N>
int osdAttrWord(const tinyxml2::XMLElement* pstElem, const char* pcName, const tagKEYWORD_S<E> (&astWord)[N], E* penOut)
{
    const tinyxml2::XMLAttribute* pstAttr = pstElem->FindAttribute(pcName);
    return pstAttr != nullptr ? osdKeywordFind(astWord, pstAttr->Value(), penOut) : -1;
}
