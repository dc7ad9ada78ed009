#include "menu/nav/address.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "comm/arith.h"
#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"
#include "menu/nav/stack.h"
#include "osd_page.h"

static constexpr int c_s32AddressGroups = 4;
static constexpr size_t c_uAddressSize = 31; // with the end, in a field of 32

// Decimal numbers with dots between them; the reading ends where the text is something else.
static void osdAddressRead(const char* pcData, int (&as32Group)[c_s32AddressGroups])
{
    for (int& s32Group : as32Group) {
        char* pcEnd = nullptr;
        const long s64Number = strtol(pcData, &pcEnd, 10);
        if (pcEnd == pcData) {
            return;
        }
        s32Group = static_cast<int>(std::clamp<long>(s64Number, INT_MIN, INT_MAX));
        if (*pcEnd != '.') {
            return;
        }
        pcData = pcEnd + 1;
    }
}

static void osdAddressRewrite(char* pcData, int s32Digits)
{
    int as32Group[c_s32AddressGroups] = {};
    osdAddressRead(pcData, as32Group);
    OSD_TEXT acText = "";
    (void)snprintf(acText, c_uAddressSize, "%0*d.%0*d.%0*d.%0*d", s32Digits, as32Group[0], s32Digits, as32Group[1],
                   s32Digits, as32Group[2], s32Digits, as32Group[3]); // numbers beyond an address are cut
    memcpy(pcData, acText, strlen(acText) + 1);
}

void osdAddressExpand(char* pcData) { osdAddressRewrite(pcData, 3); }

void osdAddressFold(char* pcData) { osdAddressRewrite(pcData, 1); }

void osdAddressToggle(tagITEM_NODE_S* pstItem)
{
    pstItem->s32EditCursor = 0;
    if (pstItem->bEditing == 1) {
        pstItem->bEditing = 0;
        osdAddressFold(pstItem->acValue[1]);
    } else {
        pstItem->bEditing = 1;
        osdAddressExpand(pstItem->acValue[1]);
    }
}

// The selected item of the top page, or null.
static tagITEM_NODE_S* osdAddressSelected(const char* pcFunc)
{
    tagPAGE_NODE_S* pstPage = osdPageTop();
    return pstPage != nullptr ? osdStackSelected(pstPage, pcFunc) : nullptr;
}

bool osdAddressIsEdited()
{
    const tagITEM_NODE_S* pstItem = osdAddressSelected(OSD_NAME(osdMenuIsItemEditing));
    return pstItem != nullptr && pstItem->bActive == 1 && pstItem->enAttr == EDITABLE && pstItem->bEditing == 1;
}

// The edit cursor one place on, past a dot and from one end to the other.
static int32_t osdAddressStep(const char* pcText, const tagITEM_NODE_S* pstItem, tagOSD_MENU_KEY_E enKey)
{
    const auto s32Last = static_cast<int32_t>(strlen(pcText)) - 1; // 14 at least, as the text is expanded
    const int32_t s32LastDeclared = osdClampS32(int64_t{pstItem->s32NumOfChar} - 1);
    const int32_t s32From = std::clamp<int32_t>(pstItem->s32EditCursor, 0, s32Last);
    int32_t s32To = 0;
    if (enKey == OSD_MENU_KEY_LEFT) {
        s32To = s32From == 0 ? s32LastDeclared : s32From - (pcText[s32From - 1] == '.' ? 2 : 1);
    } else if (s32From < s32LastDeclared) {
        s32To = s32From + (pcText[s32From + 1] == '.' ? 2 : 1);
    }
    return std::clamp<int32_t>(s32To, 0, s32Last); // a page may declare no length, or one beyond the text
}

// A digit turns within itself; nothing else does.
static char osdAddressTurn(char cDigit, int s32Step)
{
    if (cDigit < '0' || cDigit > '9') {
        return cDigit;
    }
    return static_cast<char>('0' + (cDigit - '0' + s32Step + 10) % 10);
}

static void osdAddressTurnAt(OSD_TEXT& acText, int32_t s32Cursor, int s32Step)
{
    if (s32Cursor >= 0 && s32Cursor < OSD_TEXT_LEN) {
        acText[s32Cursor] = osdAddressTurn(acText[s32Cursor], s32Step);
    }
}

bool osdAddressKey(tagOSD_MENU_KEY_E enKey)
{
    tagITEM_NODE_S* pstItem = osdAddressSelected(OSD_NAME(osdMenuEditableItemKeyEvent));
    if (pstItem == nullptr) {
        return false;
    }
    osdAddressExpand(pstItem->acValue[1]);
    switch (enKey) {
    case OSD_MENU_KEY_LEFT:
    case OSD_MENU_KEY_RIGHT:
        pstItem->s32EditCursor = osdAddressStep(pstItem->acValue[1], pstItem, enKey);
        break;
    case OSD_MENU_KEY_UP:
        osdAddressTurnAt(pstItem->acValue[1], pstItem->s32EditCursor, 1);
        break;
    case OSD_MENU_KEY_DOWN:
        osdAddressTurnAt(pstItem->acValue[1], pstItem->s32EditCursor, -1);
        break;
    }
    return true;
}

bool osdAddressDrop(tagPAGE_MGR_S* pstMgr)
{
    tagPAGE_NODE_S* pstPage = osdPageTop(pstMgr);
    tagITEM_NODE_S* pstItem = pstPage != nullptr ? osdPageSelected(pstPage) : nullptr;
    if (pstItem == nullptr || pstItem->bEditing != 1) {
        return false;
    }
    pstItem->s32EditCursor = 0;
    pstItem->bEditing = 0;
    osdTextSetField(pstItem->acValue[1], pstItem->acValue[0]);
    return true;
}

tagADDRESS_COUNT_S osdAddressCount(const tagITEM_NODE_S* pstItem)
{
    const char* pcText = pstItem->acValue[1];
    const int32_t s32Cnt = std::clamp<int32_t>(pstItem->s32EditCursor, -1, OSD_TEXT_LEN - 2) + 1;
    const char* pcEnd = std::find(pcText, pcText + s32Cnt, '\0');
    return {static_cast<int>(std::count_if(pcText, pcEnd, [](char c) { return c >= '0' && c <= '9'; })),
            static_cast<int>(std::count(pcText, pcEnd, '.'))};
}
