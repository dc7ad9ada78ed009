#include "tests/fake/keys.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "menu/core/flat_list.h"
#include "tests/fake/calls.h"
#include "tests/fake/platform.h"

namespace fake {

const std::map<std::string, int (*)()>& keys()
{
    // clang-format off
    static const std::map<std::string, int (*)()> all = {
        {"open", OSD_MENU_OpenMenu}, {"menu", OSD_MENU_HandleKeyMenu}, {"advanced", OSD_MENU_HandleKeyAdvancedMenu},
        {"return", OSD_MENU_ReturnMenu}, {"close", OSD_MENU_CloseMenu}, {"home", OSD_MENU_HandleKeyHome},
        {"up", OSD_MENU_HandleKeyUp}, {"down", OSD_MENU_HandleKeyDown}, {"left", OSD_MENU_HandleKeyLeft},
        {"right", OSD_MENU_HandleKeyRight}, {"up_left", OSD_MENU_HandleKeyUp_Left},
        {"up_right", OSD_MENU_HandleKeyUp_Right}, {"down_left", OSD_MENU_HandleKeyDown_Left},
        {"down_right", OSD_MENU_HandleKeyDown_Right}, {"left_update", OSD_MENU_HandleKeyLeftUpdateItem},
        {"right_update", OSD_MENU_HandleKeyRightUpdateItem}, {"set", OSD_MENU_HandleSetParam},
        {"refresh", OSD_MENU_RefreshCurrentPage}, {"refresh_page", OSD_MENU_RefreshPage},
        {"render", OSD_MENU_RenderCanvas}, {"is_network", osdXmlIsInNetworkPage},
        {"is_exposure", osdXmlIsOnOfViewFollowExposure}, {"is_wb", osdXmlIsOnOfViewFollowWB}};
    // clang-format on
    return all;
}

int press(const std::string& words)
{
    std::istringstream in(words);
    int result = 0;
    for (std::string word; in >> word;) {
        const size_t at = word.find('=');
        const std::string key = word.substr(0, at);
        if (word == "|") {
            calls().lines.clear();
        } else if (key == "language") {
            platform().language = word.substr(at + 1);
        } else if (at != std::string::npos) {
            char(&text)[OSD_CFG_VALUE_LEN] = platform().texts[key].acValue;
            snprintf(text, sizeof text, "%s", word.c_str() + at + 1);
            platform().numbers[key].s32Cur = atoi(word.c_str() + at + 1);
        } else {
            result = keys().at(word)();
        }
    }
    return result;
}

static void addVisible(const list_head& list, std::vector<const tagITEM_NODE_S*>& items)
{
    for (const tagITEM_NODE_S* item : osdItems(const_cast<list_head*>(&list))) {
        items.push_back(item);
        const int option = item->enAttr == MSG_WITH_SUBITEM ? item->s32SavedIdx : item->s32CurIdx;
        const bool lists = item->enAttr == MSG_WITH_SUBITEM || item->enAttr == SUBITEM;
        if (lists && option >= 0 && option < item->s32ValCnt) {
            addVisible(item->astSubList[option], items);
        }
    }
}

std::vector<const tagITEM_NODE_S*> visibleItems(const tagPAGE_NODE_S& page)
{
    std::vector<const tagITEM_NODE_S*> items;
    addVisible(page.stItemList, items);
    return items;
}

static std::string pair(int now, int saved)
{
    return "=" + std::to_string(now) + (now == saved ? "" : "/" + std::to_string(saved));
}

static std::string value(const tagITEM_NODE_S& item)
{
    const std::string text = item.enValType == NUMERICAL ? "" : item.acValue[0];
    if (item.enValType == NUMERICAL) {
        return pair(item.s32Cur, item.s32Saved);
    }
    if (item.enAttr == EDITABLE) {
        return "=" + text + (text == item.acValue[1] ? "" : std::string("|") + item.acValue[1]) +
               (item.bEditing == 1 ? "@" + std::to_string(item.s32EditCursor) : "");
    }
    const bool button = item.enAttr == CONFIRM || item.enAttr == CONFIRM_POP || item.enAttr == CONFIRM_POP_BTN;
    if (item.enAttr == STATUS || button) {
        return text.empty() ? "" : "='" + text + "'";
    }
    return item.s32CurIdx == 0 && item.s32SavedIdx == 0 ? "" : pair(item.s32CurIdx, item.s32SavedIdx);
}

std::string shown(const tagITEM_NODE_S& item) { return item.acItemIndex + value(item); }

std::string pageState(const tagPAGE_NODE_S& page, bool top)
{
    std::string all;
    std::string selected;
    for (const tagITEM_NODE_S* item : visibleItems(page)) {
        selected += selected.empty() && item->bActive == 1 ? shown(*item) : "";
        all +=
            (all.empty() ? "" : " ") + std::string(item->acItemIndex) + (item->bActive == 1 ? "*" : "") + value(*item);
    }
    if (page.enLayout == PAGE_LAYOUT_ICON) {
        return page.acPageName + format("#%d", page.s32SelIdx);
    }
    const std::string message = page.bKeyMsg == 1 ? format(" '%s'", page.acKeyMsg) : "";
    return top ? page.acPageName + ("(" + all + ")") + message : page.acPageName + ("." + selected);
}

std::string state()
{
    std::string text;
    for (int page = 0; page < gstPageMgr.s32PageCnt; page++) {
        text += (page == 0 ? "" : " / ") + pageState(gstPageMgr.astPage[page], page == gstPageMgr.s32PageCnt - 1);
    }
    return text;
}

} // namespace fake
