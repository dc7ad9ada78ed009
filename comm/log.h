// Trace lines on standard output and lines in the camera's log.
#pragma once

#include "platform/log_service.h"

// The place of a line: function and source line, for a format that begins "%s %d" or "[%s:%d]".
#define OSD_PLACE __func__, __LINE__

// Prints one trace line.
void osdTrace(const char* pcFormat, ...) __attribute__((format(printf, 1, 2)));

#define OSD_TRACE_FAILED() osdTrace("%s %d failed\n", OSD_PLACE)

struct tagLOG_TAG_S {
    char acTag[64];
};

// "function[line] "
tagLOG_TAG_S osdLogTag(const char* pcFunc, int s32Line);

// Logs one line at OSD_LOG_LEVEL_ERR or OSD_LOG_LEVEL_INFO; the arguments behind the level are those of printf.
#define OSD_LOG(s32Level, ...) UTIL_LOG_Print((s32Level), osdLogTag(OSD_PLACE).acTag, __VA_ARGS__)
