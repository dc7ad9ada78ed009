#include "menu/nav/tally.h"

#include <cstdio>

#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/led_color.h"
#include "menu/core/value_status.h"
#include "platform/config_call.h"

static tagITEM_NODE_S* osdTallyFind(list_head* pstList, const char* pcKey)
{
    for (tagITEM_NODE_S* pstItem : osdFlatItems(pstList)) {
        if (osdTextEqual(pstItem->acItemIndex, pcKey)) {
            return pstItem;
        }
    }
    return nullptr;
}

// Puts the byte on the screen into the colour on the screen.
static void osdTallyMix(const tagLED_BYTE_S& stByte, int32_t s32Byte, OSD_TEXT& acColor)
{
    unsigned u32Color = 0;
    (void)sscanf(acColor, "%6X", &u32Color); // a text that is no colour counts as black
    u32Color &= 0xFFFFFFU & ~(0xFFU << stByte.u32Shift);
    u32Color |= (static_cast<unsigned>(s32Byte) & 0xFFU) << stByte.u32Shift;
    (void)snprintf(acColor, sizeof(acColor), "%06X", u32Color); // six digits always fit
}

void osdTallyUpdate(tagPAGE_NODE_S* pstPage, list_head* pstList, bool bUpdate)
{
    if (!osdTextEqual(pstPage->acPageName, OSD_PAGE_TALLY)) {
        return;
    }
    // found first, as the selection threads the list anew
    tagITEM_NODE_S* pstColor = osdTallyFind(pstList, OSD_KEY_LED_COLOR);
    const tagITEM_NODE_S* pstItem = osdPageSelected(pstPage);
    const tagLED_BYTE_S* pstByte = pstItem != nullptr ? osdLedByteFind(pstItem->acItemIndex) : nullptr;
    if (pstColor == nullptr || pstByte == nullptr) {
        return;
    }
    if (!bUpdate) {
        osdTallyMix(*pstByte, pstItem->s32Cur, pstColor->acValue[0]);
        return;
    }
    OSD_TEXT acLanguage;
    osdCfgLanguage(acLanguage); // a colour needs no language
    osdStatusRead(acLanguage, pstColor);
}
