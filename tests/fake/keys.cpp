#include "tests/fake/keys.h"

#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "osd_menu.h"
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
        if (at != std::string::npos) {
            char(&text)[OSD_CFG_VALUE_LEN] = platform().texts[key].acValue;
            snprintf(text, sizeof text, "%s", word.c_str() + at + 1);
            platform().numbers[key].s32Cur = atoi(word.c_str() + at + 1);
        } else {
            result = keys().at(word)();
        }
    }
    return result;
}

} // namespace fake
