// The custom colour of the tally light, 0xRRGGBB: which numeric items show a byte of it.
#pragma once

#include "comm/text.h"
#include "menu/core/words.h"

struct tagLED_BYTE_S {
    const char* pcKey;
    unsigned u32Shift;
};

inline constexpr tagLED_BYTE_S c_astLedByte[] = {{OSD_KEY_LED_RED, 16}, {OSD_KEY_LED_GREEN, 8}};

// The byte that an item of this key shows, or null.
inline const tagLED_BYTE_S* osdLedByteFind(const char* pcKey)
{
    for (const tagLED_BYTE_S& stByte : c_astLedByte) {
        if (osdTextEqual(stByte.pcKey, pcKey)) {
            return &stByte;
        }
    }
    return nullptr;
}
