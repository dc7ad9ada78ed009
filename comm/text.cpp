#include "comm/text.h"

void osdTextCopy(char* pcDst, size_t u32Size, const char* pcSrc, size_t u32SrcMax)
{
    size_t u32Len = strnlen(pcSrc, u32SrcMax < u32Size ? u32SrcMax : u32Size - 1);
    const bool bCut = u32Len < u32SrcMax && pcSrc[u32Len] != '\0';
    // back to the start of a character that the cut fell into: three bytes at most stand before its last one
    for (int i = 0; bCut && i < 3 && u32Len > 0 && (static_cast<unsigned char>(pcSrc[u32Len]) & 0xC0) == 0x80; i++) {
        u32Len--;
    }
    memmove(pcDst, pcSrc, u32Len);
    memset(pcDst + u32Len, 0, u32Size - u32Len);
}
