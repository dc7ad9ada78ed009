// Trace lines on standard output and lines in the camera's log.
#pragma once

#include "platform/log_service.h"

// The name of a function of the interface; a name that none has doesn't compile.
#define OSD_NAME(Function) (static_cast<decltype(&(Function))>(nullptr) == nullptr ? #Function : "")

// The place of a line: the function of the interface that it belongs to, and the source line, for a format that begins
// "%s %d" or "[%s:%d]".
#define OSD_PLACE(Function) OSD_NAME(Function), __LINE__

// Prints one trace line.
void osdTrace(const char* pcFormat, ...) __attribute__((format(printf, 1, 2)));

#define OSD_TRACE_FAILED(Function) osdTrace("%s %d failed\n", OSD_PLACE(Function))

struct tagLOG_TAG_S {
    char acTag[64];
};

// "function[line] "
tagLOG_TAG_S osdLogTag(const char* pcFunc, int s32Line);

// Logs one line at OSD_LOG_LEVEL_ERR or OSD_LOG_LEVEL_INFO; the arguments behind the level are those of printf.
#define OSD_LOG(Function, s32Level, ...) UTIL_LOG_Print((s32Level), osdLogTag(OSD_PLACE(Function)).acTag, __VA_ARGS__)
