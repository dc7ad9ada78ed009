/* The camera's log, as the menu calls it. The process that loads the library provides it with C linkage. */
#pragma once

#include "osd_types.h"

OSD_EXTERN_C_BEGIN

enum { OSD_LOG_LEVEL_ERR = 3, OSD_LOG_LEVEL_INFO = 6 };

/* Logs one line. pcTag is "function[line] ". */
void UTIL_LOG_Print(int s32Level, char* pcTag, const char* pcFormat, ...) __attribute__((format(printf, 3, 4)));

OSD_EXTERN_C_END
