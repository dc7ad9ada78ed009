// Values of items: first binding, status sources, the configuration's lists.
#include <sstream>

#include "menu/core/page.h"
#include "tests/core/page_text.h"

using namespace fake;
using namespace testing;

class BindTest : public PageTest {};

TEST_F(BindTest, ValuesByAttributeAndType)
{
    setText("Gain", "Auto:Low:High:Low", "Low"); // the last of equal options counts
    setText("Addr", "", "192.168.1.20");
    setNumber("Zoom", -10, 90, 5, 40);
    setNumber("LedCustomColor", 3, 0xFFFFFF, 2, 0x123456);
    platform().untranslated = {"High"};
    const std::pair<const char*, std::string> cases[] = {
        {"Gain NAME_VAL COMMON", " attr=3 active=1 [Auto|t.Auto][Low|t.Low][High|][Low|t.Low] cur=3 saved=3"},
        {"Gain NAME COMMON", " attr=3 active=1"},
        {"Gain NAME_VAL KEY_WITH_MSG Msg='m'", " msg=m|t.m [Auto|t.Auto][Low|t.Low][High|][Low|t.Low] cur=3 saved=3"},
        {"Zoom NAME_BAR_VAL COMMON ValType='NUMERICAL'", " type=0 active=1 -10..90/5=40,40"},
        {"LedCustomRed NAME_VAL COMMON ValType='NUMERICAL'", " active=1 3..255/2=18,18"},
        {"LedCustomGreen NAME_VAL COMMON ValType='NUMERICAL'", " active=1 3..255/2=52,52"},
        {"Addr NAME_IP_VAL EDITABLE", " attr=4 active=1 [192.168.1.20][192.168.1.20]"},
        {"Run NAME_VAL CONFIRM Value='Go'", " attr=5 active=1 [Go|t.Go]"},
        {"Run NAME_VAL CONFIRM_POP Value='Go' ConfirmPage='c'", " attr=6 active=1 asks=c [Go|t.Go]"},
        {"Run NAME_VAL CONFIRM_POP Value='Go'", " attr=6 active=1"},
        {"Run NAME_VAL CONFIRM_POP_BTN Value='Go' ConfirmPage='c'", " attr=7 active=1 asks=c"},
    };
    for (const auto& [text, value] : cases) {
        EXPECT_THAT(parsed(page(item(text))), EndsWith(value)) << text;
    }

    std::string list = "k0"; // of more options than fit
    for (int option = 1; option < 60; option++) {
        list += ":k" + std::to_string(option);
    }
    setText("Gain", list.c_str(), "k31");
    const tagITEM_NODE_S* gain = opened(item("Gain NAME_VAL COMMON"));
    EXPECT_EQ(gain->s32ValCnt, 32);
    EXPECT_THAT(describe(*gain), AllOf(HasSubstr(" [k0|t.k0][k1|t.k1]"), EndsWith("[k31|t.k31] cur=31 saved=31")));
}

TEST_F(BindTest, StatusSources)
{
    for (int event = 0; event <= 11; event++) {
        platform().answers[event] = "answer" + std::to_string(event);
    }
    platform().deviceType = "PTZ-12X";
    for (const std::string key : {"IpAddr", "NetMask", "GateWay", "Dns1", "Dns2"}) {
        setText("NetCard0/" + key, "", ("net-" + key).c_str());
    }
    setText("Panorama/IrisLevel", "", "F1.8");
    platform().parents = {{"Cam", "Elsewhere"}}; // plays no part
    start({0, 2, 0, {0.0f, 0.0f, 0.2f, 0.2f}, true});
    std::istringstream cases("FwVersion=answer3 IspVersion=answer1 AfVersion=answer0 AiVersion=answer2 "
                             "VideoFormat=answer4 IpAddr=net-IpAddr NetMask=net-NetMask GateWay=net-GateWay "
                             "Dns1=net-Dns1 Dns2=net-Dns2 IrisLevel=F1.8 DeviceName=answer5 DeviceType=PTZ-12X "
                             "SN=answer6 Mac=answer7 NdiVersion=answer8 FullNdiVersion=answer9 NdiStatus=t.answer10 "
                             "LedCustomColor=answer11 Unknown=");
    for (std::string entry; cases >> entry;) {
        const size_t end = entry.find('=');
        const tagITEM_NODE_S* status = opened(item(entry.substr(0, end) + " NAME_VAL STATUS DataZone='Cam'"));
        EXPECT_THAT(describe(*status), EndsWith(" [|" + entry.substr(end + 1) + "]")) << entry;
        (void)osdMenuReleaseSinglePage();
    }
    EXPECT_THAT(linesOf({"answer"}), Each(Not(EndsWith("stranger"))));
    stop(); // without a callback
    EXPECT_THAT(parsed(page(item("SN NAME_VAL STATUS"))), EndsWith(" [|]"));
}
