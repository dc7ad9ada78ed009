// Fixed text fields: copies that never pass the field and always end it.
#pragma once

#include <cstddef>
#include <cstring>

#include "osd_types.h"

// Exact equality; most texts differ in the first byte.
inline bool osdTextEqual(const char* pcLeft, const char* pcRight)
{
    return *pcLeft == *pcRight && strcmp(pcLeft, pcRight) == 0;
}

// Exact equality with one of several texts.
template <size_t N>
bool osdTextAmong(const char* const (&apcText)[N], const char* pcText)
{
    for (const char* pcCandidate : apcText) {
        if (osdTextEqual(pcCandidate, pcText)) {
            return true;
        }
    }
    return false;
}

// A text with its end fits a field of the records.
inline bool osdTextFits(const char* pcText) { return strlen(pcText) < OSD_TEXT_LEN; }

// Copies at most uSrcMax bytes of a text into a field of uSize bytes and clears the rest of the field. What doesn't
// fit is cut before the character that would not be whole.
void osdTextCopy(char* pcDst, size_t uSize, const char* pcSrc, size_t uSrcMax);

template <size_t N>
void osdTextSet(char (&acDst)[N], const char* pcSrc)
{
    osdTextCopy(acDst, N, pcSrc, SIZE_MAX);
}

// The same from a field that may lack its end.
template <size_t N, size_t M>
void osdTextSetField(char (&acDst)[N], const char (&acSrc)[M])
{
    osdTextCopy(acDst, N, acSrc, M);
}

// Overwrites the start of a field with a text and its end; what stands behind stays. For literals, which must fit.
template <size_t N, size_t M>
void osdTextPatch(char (&acDst)[N], const char (&acSrc)[M])
{
    static_assert(M <= N, "the text must fit the field");
    memcpy(acDst, acSrc, M);
}

// Equality of a field, which may lack its end, with a text.
template <size_t N>
bool osdTextFieldEqual(const char (&acField)[N], const char* pcText)
{
    return strncmp(acField, pcText, N) == 0;
}
