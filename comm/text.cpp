#include "comm/text.h"

void osdTextCopy(char* pcDst, size_t uSize, const char* pcSrc, size_t uSrcMax)
{
    size_t uLen = strnlen(pcSrc, uSrcMax < uSize ? uSrcMax : uSize - 1);
    const bool bCut = uLen < uSrcMax && pcSrc[uLen] != '\0';
    // back to the start of a character that the cut fell into: three bytes at most stand before its last one
    for (int i = 0; bCut && i < 3 && uLen > 0 && (static_cast<unsigned char>(pcSrc[uLen]) & 0xC0) == 0x80; i++) {
        uLen--;
    }
    memmove(pcDst, pcSrc, uLen);
    memset(pcDst + uLen, 0, uSize - uLen);
}
