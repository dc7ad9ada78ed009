/* The camera's configuration and language service, as the menu calls it. The process that loads the library provides
 * these functions with C linkage. Compiles as C11 and as C++17.
 *
 * All keys and texts are zero-terminated. The results of the CFG_COM_ calls are not read: the record counts. */
#pragma once

#include "osd_types.h"

OSD_EXTERN_C_BEGIN

typedef struct tagCFG_VALUE_TXT_S {
    char acList[OSD_CFG_LIST_LEN];   /* option keys, separated by ":" */
    char acValue[OSD_CFG_VALUE_LEN]; /* current value */
} tagCFG_VALUE_TXT_S;

typedef struct tagCFG_VALUE_INT_S {
    int32_t s32Min;
    int32_t s32Max;
    int32_t s32Reserved;
    int32_t s32Step;
    int32_t s32Cur; /* for "LedCustomColor" a colour, 0xRRGGBB */
} tagCFG_VALUE_INT_S;

typedef struct tagDEV_ATTR_CONTENT_S {
    char acOther[88];
    char acDeviceType[OSD_ANSWER_LEN - 88]; /* zero-terminated */
} tagDEV_ATTR_CONTENT_S;

static_assert(sizeof(tagCFG_VALUE_TXT_S) == 288, "text record");
static_assert(sizeof(tagCFG_VALUE_INT_S) == 20, "integer record");
static_assert(sizeof(tagDEV_ATTR_CONTENT_S) == 4096, "device attributes");

int CFG_COM_GetTxtParams(char* pcKey, tagCFG_VALUE_TXT_S* pstValue);
int CFG_COM_GetTxtParamByParent(char* pcParent, char* pcKey, tagCFG_VALUE_TXT_S* pstValue);
int CFG_COM_GetIntParams(char* pcKey, tagCFG_VALUE_INT_S* pstValue);
int CFG_COM_GetIntParamByParent(char* pcParent, char* pcKey, tagCFG_VALUE_INT_S* pstValue);

/* Stores a text value; the menu passes 1 as the last argument. */
int CFG_COM_SetTxtParams(char* pcKey, char* pcValue, OSD_BOOL bSave);

/* Writes the name of the current language into a zeroed buffer of 32 bytes; non-zero when there is none. */
int CFG_SYSTEM_GetLanguage(char* pcLanguage);

/* Writes the translation of a key, 31 bytes at most, into a field of 32 bytes; non-zero leaves no usable text. */
int CFG_LANG_GetString(char* pcLanguage, char* pcKey, char* pcOut);

/* Fills the device attributes into a zeroed record. */
int BSP_PARTITION_GetDevAttribute(tagDEV_ATTR_CONTENT_S* pstAttr);

OSD_EXTERN_C_END

#ifdef __cplusplus
namespace tinyxml2 {
class XMLDocument;
}

/* The document of a page file, new and the caller's to delete; null when it can't be had. The menu passes 1. */
extern "C" tinyxml2::XMLDocument* CFG_GetDocByFileName(const char* pcPath, OSD_BOOL bRead);
#endif
