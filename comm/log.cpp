#include "comm/log.h"

#include <cstdarg>
#include <cstdio>

void osdTrace(const char* pcFormat, ...)
{
    va_list stArgs;
    va_start(stArgs, pcFormat);
    (void)vprintf(pcFormat, stArgs);
    va_end(stArgs);
}

tagLOG_TAG_S osdLogTag(const char* pcFunc, int s32Line)
{
    tagLOG_TAG_S stTag;
    (void)snprintf(stTag.acTag, sizeof(stTag.acTag), "%s[%d] ", pcFunc, s32Line);
    return stTag;
}
