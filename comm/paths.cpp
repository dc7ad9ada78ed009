#include "comm/paths.h"

#include <algorithm>
#include <cstring>

// Without a format: a redraw builds two paths for every bar.
void osdPathBuild(char (&acPath)[OSD_PATH_LEN], const char* pcDir, const char* pcStem, const char* pcEnd)
{
    size_t uLen = 0;
    for (const char* pcPart : {pcDir, pcStem, pcEnd}) {
        const size_t uRoom = OSD_PATH_LEN - 2 - uLen;
        const size_t uPart = std::min(strlen(pcPart), uRoom);
        memcpy(acPath + uLen, pcPart, uPart);
        uLen += uPart;
    }
    acPath[uLen] = '\0';
}
