#include "menu/nav/address.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>

#include "comm/log.h"
#include "comm/text.h"
#include "menu/core/flat_list.h"
#include "menu/core/page.h"

static constexpr int ADDRESS_GROUPS = 4;
static constexpr size_t ADDRESS_SIZE = 31; // with the end, in a field of 32

// Decimal numbers with dots between them; the reading ends where the text is something else.
static void osdAddressRead(const char* pcData, int (&as32Group)[ADDRESS_GROUPS])
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
    int as32Group[ADDRESS_GROUPS] = {};
    osdAddressRead(pcData, as32Group);
    char acText[OSD_TEXT_LEN] = {};
    (void)snprintf(acText, ADDRESS_SIZE, "%0*d.%0*d.%0*d.%0*d", s32Digits, as32Group[0], s32Digits, as32Group[1],
                   s32Digits, as32Group[2], s32Digits, as32Group[3]); // numbers beyond an address are cut
    memcpy(pcData, acText, strlen(acText) + 1);
}

int osdMenuExpandNetworkData(char* pcData)
{
    osdAddressRewrite(pcData, 3);
    return 0;
}

int osdMenuFoldNetworkData(char* pcData)
{
    osdAddressRewrite(pcData, 1);
    return 0;
}

void osdAddressToggle(tagITEM_NODE_S* pstItem)
{
    pstItem->s32EditCursor = 0;
    if (pstItem->bEditing == 1) {
        pstItem->bEditing = 0;
        (void)osdMenuFoldNetworkData(pstItem->acValue[1]); // always 0
    } else {
        pstItem->bEditing = 1;
        (void)osdMenuExpandNetworkData(pstItem->acValue[1]); // always 0
    }
}

// The selected item of the top page, or null with a line in the log.
static tagITEM_NODE_S* osdAddressItem(tagPAGE_NODE_S* pstPage)
{
    tagITEM_NODE_S* pstItem = osdMenuGetSelectedItem(pstPage);
    if (pstItem == nullptr) {
        osdTrace("%s don't find selected item\n", __func__);
    }
    return pstItem;
}

OSD_BOOL osdMenuIsItemEditing()
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    const tagITEM_NODE_S* pstItem = pstPage != nullptr ? osdAddressItem(pstPage) : nullptr;
    return pstItem != nullptr && pstItem->bActive == 1 && pstItem->enAttr == EDITABLE && pstItem->bEditing == 1 ? 1 : 0;
}

// The edit cursor one place on, past a dot and from one end to the other. A page that gives no length, or one beyond
// the text, gets the length of the text.
static int32_t osdAddressStep(const char* pcText, const tagITEM_NODE_S* pstItem, int32_t s32Step)
{
    const auto s32TextLen = static_cast<int32_t>(strlen(pcText)); // 15 at least, as the text is expanded
    const int32_t s32Declared = pstItem->s32NumOfChar;
    const int32_t s32Len = s32Declared >= 1 && s32Declared <= s32TextLen ? s32Declared : s32TextLen;
    const int32_t s32From = std::clamp<int32_t>(pstItem->s32EditCursor, 0, s32Len - 1);
    int32_t s32To = s32From + s32Step;
    if (s32To >= 0 && s32To < s32Len && pcText[s32To] == '.') {
        s32To += s32Step;
    }
    if (s32To < 0) {
        return s32Len - 1;
    }
    return s32To < s32Len ? s32To : 0;
}

// A digit turns within itself; nothing else does.
static char osdAddressTurn(char cDigit, int s32Step)
{
    if (cDigit < '0' || cDigit > '9') {
        return cDigit;
    }
    return static_cast<char>('0' + (cDigit - '0' + s32Step + 10) % 10);
}

static void osdAddressTurnAt(char (&acText)[OSD_TEXT_LEN], int32_t s32Cursor, int s32Step)
{
    if (s32Cursor >= 0 && s32Cursor < OSD_TEXT_LEN) {
        acText[s32Cursor] = osdAddressTurn(acText[s32Cursor], s32Step);
    }
}

int osdMenuEditableItemKeyEvent(tagOSD_MENU_KEY_E enKey)
{
    tagPAGE_NODE_S* pstPage = osdXmlGetCurPage();
    tagITEM_NODE_S* pstItem = pstPage != nullptr ? osdAddressItem(pstPage) : nullptr;
    if (pstItem == nullptr) {
        return -1;
    }
    (void)osdMenuExpandNetworkData(pstItem->acValue[1]); // always 0
    switch (enKey) {
    case OSD_MENU_KEY_LEFT:
        pstItem->s32EditCursor = osdAddressStep(pstItem->acValue[1], pstItem, -1);
        break;
    case OSD_MENU_KEY_RIGHT:
        pstItem->s32EditCursor = osdAddressStep(pstItem->acValue[1], pstItem, 1);
        break;
    case OSD_MENU_KEY_UP:
        osdAddressTurnAt(pstItem->acValue[1], pstItem->s32EditCursor, 1);
        break;
    case OSD_MENU_KEY_DOWN:
        osdAddressTurnAt(pstItem->acValue[1], pstItem->s32EditCursor, -1);
        break;
    }
    return 0;
}

OSD_BOOL osdMenuExitEditableStatus(tagPAGE_MGR_S* pstMgr)
{
    const int32_t s32Cnt = pstMgr->s32PageCnt;
    const bool bOpen = s32Cnt >= 1 && s32Cnt <= OSD_PAGE_MAX;
    tagITEM_NODE_S* pstItem = bOpen ? osdMenuGetSelectedItem(&pstMgr->astPage[s32Cnt - 1]) : nullptr;
    if (pstItem == nullptr || pstItem->bEditing != 1) {
        return 0;
    }
    pstItem->s32EditCursor = 0;
    pstItem->bEditing = 0;
    osdTextSetField(pstItem->acValue[1], pstItem->acValue[0]);
    return 1;
}

int osdMenuCalcInfoBeforeCursor(tagITEM_NODE_S* pstItemNode, int* ps32Digits, int* ps32Dots)
{
    const char* pcText = pstItemNode->acValue[1];
    const int32_t s32Cnt = std::clamp<int32_t>(pstItemNode->s32EditCursor, -1, OSD_TEXT_LEN - 2) + 1;
    const char* pcEnd = std::find(pcText, pcText + s32Cnt, '\0');
    *ps32Digits = static_cast<int>(std::count_if(pcText, pcEnd, [](char c) { return c >= '0' && c <= '9'; }));
    *ps32Dots = static_cast<int>(std::count(pcText, pcEnd, '.'));
    return 0;
}
