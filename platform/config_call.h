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

// Stores an option of a setting; the service's result is not read.
inline void osdCfgSetTxt(const char* pcKey, const char* pcValue)
{
    (void)CFG_COM_SetTxtParams(const_cast<char*>(pcKey), const_cast<char*>(pcValue), 1);
}

// Translates a key; false when the service refuses. The text ends within its field, whatever the service wrote.
inline bool osdCfgTranslate(const char* pcLanguage, const char* pcKey, OSD_TEXT& acOut)
{
    const int s32Ret = CFG_LANG_GetString(const_cast<char*>(pcLanguage), const_cast<char*>(pcKey), acOut);
    acOut[OSD_TEXT_LEN - 1] = '\0';
    return s32Ret == 0;
}

// The name of the current language, cleared first; false when the service can't tell.
inline bool osdCfgLanguage(OSD_TEXT& acLanguage)
{
    for (char& cByte : acLanguage) {
        cByte = '\0';
    }
    const int s32Ret = CFG_SYSTEM_GetLanguage(acLanguage);
    acLanguage[OSD_TEXT_LEN - 1] = '\0';
    return s32Ret == 0;
}
