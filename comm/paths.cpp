#include "comm/paths.h"

#include <algorithm>
#include <cstring>

// Without a format: a redraw builds two paths for every bar.
void osdPathBuild(char (&acPath)[OSD_PATH_LEN], const char* pcDir, const char* pcStem, const char* pcEnd)
{
    size_t u32Len = 0;
    for (const char* pcPart : {pcDir, pcStem, pcEnd}) {
        const size_t u32Room = OSD_PATH_LEN - 2 - u32Len;
        const size_t u32Part = std::min(strlen(pcPart), u32Room);
        memcpy(acPath + u32Len, pcPart, u32Part);
        u32Len += u32Part;
    }
    acPath[u32Len] = '\0';
}
