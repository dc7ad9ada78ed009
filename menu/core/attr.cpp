#include "menu/core/attr.h"

#include <cstring>
#include <iterator>
#include <string_view>

#include "platform/config_call.h"

static constexpr char c_aacAttrName[][16] = { // in the order of tagATTR_ID_E, which is that of the names
    "Attr",      "ConfirmBtn", "ConfirmPage",     "CountPerLine", "Ctx",      "CurPagesNum", "DataZone",
    "ItemCnt",   "ItemIndex",  "ItemIndexOnLine", "ItemPos",      "Layout",   "Line",        "ModeIndex",
    "Msg",       "NextPage",   "NumOfChar",       "Pic",          "PicType",  "PrevPage",    "RdOnly",
    "SelectPic", "ShowValue",  "SubPage",         "Title",        "TitlePos", "ValType",     "Value"};
static_assert(std::size(c_aacAttrName) == ATTR_ID_CNT);

static constexpr bool osdAttrNamesAscend()
{
    for (size_t i = 1; i < ATTR_ID_CNT; i++) {
        if (std::string_view(c_aacAttrName[i - 1]) >= c_aacAttrName[i]) {
            return false;
        }
    }
    return true;
}
static_assert(osdAttrNamesAscend(), "a name is found from the first one with its letter on");

struct tagLETTER_INDEX_S {
    uint8_t au8First[26]; // place of the first name with this letter or a later one
};

static constexpr tagLETTER_INDEX_S osdLetterIndex()
{
    tagLETTER_INDEX_S stIndex = {};
    uint8_t u8Id = 0;
    for (int i = 0; i < 26; i++) {
        while (u8Id < ATTR_ID_CNT && c_aacAttrName[u8Id][0] < 'A' + i) {
            u8Id++;
        }
        stIndex.au8First[i] = u8Id;
    }
    return stIndex;
}

const char* osdAttrName(tagATTR_ID_E enId) { return c_aacAttrName[enId]; }

size_t osdAttrId(const char* pcName)
{
    static constexpr tagLETTER_INDEX_S stIndex = osdLetterIndex();
    const int s32Letter = *pcName - 'A';
    if (s32Letter < 0 || s32Letter >= 26) {
        return ATTR_ID_CNT;
    }
    for (size_t i = stIndex.au8First[s32Letter]; i < ATTR_ID_CNT && c_aacAttrName[i][0] == *pcName; i++) {
        if (osdTextEqual(c_aacAttrName[i] + 1, pcName + 1)) { // the letter is the same
            return i;
        }
    }
    return ATTR_ID_CNT;
}

tagATTR_SET_S osdAttrCollect(const tinyxml2::XMLElement* pstElem)
{
    tagATTR_SET_S stSet = {pstElem, {}};
    const tinyxml2::XMLAttribute* pstAttr = pstElem != nullptr ? pstElem->FirstAttribute() : nullptr;
    for (; pstAttr != nullptr; pstAttr = pstAttr->Next()) {
        const size_t uId = osdAttrId(pstAttr->Name());
        if (uId < ATTR_ID_CNT) {
            stSet.apstAttr[uId] = pstAttr;
        }
    }
    return stSet;
}

void osdAttrFault(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, tagPAGE_FAULT_E enFault)
{
    osdPageFault({enFault, stSet.pstElem, c_aacAttrName[enId], osdAttrValue(stSet, enId)});
}

tagATTR_E osdAttrText(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut)
{
    const char* pcValue = osdAttrValue(stSet, enId);
    if (pcValue == nullptr) {
        return ATTR_ABSENT;
    }
    const size_t uLen = strlen(pcValue);
    if (uLen >= OSD_TEXT_LEN) {
        osdAttrFault(stSet, enId, PAGE_FAULT_TOO_LONG);
        return ATTR_TOO_LONG;
    }
    memcpy(acOut, pcValue, uLen + 1);
    return ATTR_READ;
}

bool osdAttrInt(const tagATTR_SET_S& stSet, tagATTR_ID_E enId, int32_t* ps32Out)
{
    if (!osdAttrIsThere(stSet, enId)) {
        return false;
    }
    if (stSet.apstAttr[enId]->QueryIntValue(ps32Out) != tinyxml2::XML_SUCCESS) {
        osdAttrFault(stSet, enId, PAGE_FAULT_NUMBER);
        return false;
    }
    return true;
}

bool osdAttrTranslate(const char* pcLanguage, const tagATTR_SET_S& stSet, tagATTR_ID_E enId, OSD_TEXT& acOut)
{
    if (!osdCfgTranslate(pcLanguage, osdAttrValue(stSet, enId), acOut)) {
        osdAttrFault(stSet, enId, PAGE_FAULT_NO_TEXT);
        return false;
    }
    return true;
}
