// The configuration service with read-only keys: the one place that casts const away for its signatures.
#pragma once

#include "platform/config_service.h"

// Fills a text record; a null parent looks the key up without one. The service's result is not read.
inline void osdCfgGetTxt(const char* pcParent, const char* pcKey, tagCFG_VALUE_TXT_S* pstValue)
{
    if (pcParent != nullptr) {
        (void)CFG_COM_GetTxtParamByParent(const_cast<char*>(pcParent), const_cast<char*>(pcKey), pstValue);
    } else {
        (void)CFG_COM_GetTxtParams(const_cast<char*>(pcKey), pstValue);
    }
}

// The same for an integer record.
inline void osdCfgGetInt(const char* pcParent, const char* pcKey, tagCFG_VALUE_INT_S* pstValue)
{
    if (pcParent != nullptr) {
        (void)CFG_COM_GetIntParamByParent(const_cast<char*>(pcParent), const_cast<char*>(pcKey), pstValue);
    } else {
        (void)CFG_COM_GetIntParams(const_cast<char*>(pcKey), pstValue);
    }
}

// Translates a key; returns the service's result and ends the text within its field, whatever the service wrote.
inline int osdCfgTranslate(const char* pcLanguage, const char* pcKey, char (&acOut)[OSD_TEXT_LEN])
{
    const int s32Ret = CFG_LANG_GetString(const_cast<char*>(pcLanguage), const_cast<char*>(pcKey), acOut);
    acOut[OSD_TEXT_LEN - 1] = '\0';
    return s32Ret;
}

// The name of the current language, cleared first; returns the service's result.
inline int osdCfgLanguage(char (&acLanguage)[OSD_TEXT_LEN])
{
    for (char& cByte : acLanguage) {
        cByte = '\0';
    }
    const int s32Ret = CFG_SYSTEM_GetLanguage(acLanguage);
    acLanguage[OSD_TEXT_LEN - 1] = '\0';
    return s32Ret;
}
