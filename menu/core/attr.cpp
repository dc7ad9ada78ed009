#include "menu/core/attr.h"

#include "comm/log.h"

tagATTR_E osdAttrText(const tinyxml2::XMLElement* pstElem, const char* pcName, char (&acOut)[OSD_TEXT_LEN])
{
    const tinyxml2::XMLAttribute* pstAttr = pstElem->FindAttribute(pcName);
    if (pstAttr == nullptr) {
        return ATTR_ABSENT;
    }
    if (!osdTextFits(pstAttr->Value())) {
        OSD_LOG(OSD_LOG_LEVEL_ERR, "line %d: %s holds %zu bytes, at most %d fit\n", pstElem->GetLineNum(), pcName,
                strlen(pstAttr->Value()), OSD_TEXT_LEN - 1);
        return ATTR_TOO_LONG;
    }
    osdTextSet(acOut, pstAttr->Value());
    return ATTR_READ;
}
