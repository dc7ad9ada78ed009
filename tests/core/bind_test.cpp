// Values of items: first binding, status sources, the configuration's lists.
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
    const std::string table = R"(
        Gain Ctx='NAME_VAL' Attr='COMMON'                                | NAME_VAL COMMON BOUND
        Gain Ctx='NAME' Attr='COMMON'                                    | NAME COMMON
        Gain Ctx='NAME_VAL' Attr='KEY_WITH_MSG' Msg='m'                  | NAME_VAL KEY_WITH_MSG Msg=m reads=t.m BOUND
        Zoom Ctx='NAME_BAR_VAL' Attr='COMMON' ValType='NUMERICAL'        | NAME_BAR_VAL COMMON = 40 of -10..90 by 5
        LedCustomRed Ctx='NAME_VAL' Attr='COMMON' ValType='NUMERICAL'    | NAME_VAL COMMON = 18 of 3..255 by 2
        LedCustomGreen Ctx='NAME_VAL' Attr='COMMON' ValType='NUMERICAL'  | NAME_VAL COMMON = 52 of 3..255 by 2
        Addr Ctx='NAME_IP_VAL' Attr='EDITABLE'                           | NAME_IP_VAL EDITABLE = 192.168.1.20
        Run Ctx='NAME_VAL' Attr='CONFIRM' Value='Go'                     | NAME_VAL CONFIRM [Go t.Go] = t.Go
        Run Ctx='NAME_VAL' Attr='CONFIRM_POP' Value='Go' ConfirmPage='c' | NAME_VAL CONFIRM_POP ConfirmPage=c GO
        Run Ctx='NAME_VAL' Attr='CONFIRM_POP' Value='Go'                 | NAME_VAL CONFIRM_POP
        Run Ctx='NAME_VAL' Attr='CONFIRM_POP_BTN' Value='Go' ConfirmPage='c' | NAME_VAL CONFIRM_POP_BTN ConfirmPage=c
    )";
    for (const auto& row : tableIn(replaced(replaced(table, "GO", "[Go t.Go] = t.Go"), "BOUND",
                                            "[Auto t.Auto] [Low t.Low] [High] [Low t.Low] = t.Low"))) {
        EXPECT_THAT(parsed("<I ItemIndex='" + replaced(row[0], "^(\\w+)", "$1'") + "/>"), EndsWith(") " + row[1]));
    }
    const std::string list = replaced(std::string(31, 'k'), "k", "k:"); // and two more: one option too many
    setText("Gain", (list + "last:more").c_str(), "last");
    EXPECT_THAT(describe(*opened("<I ItemIndex='Gain'/>")), EndsWith(" [k t.k] [last t.last] = t.last"));
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
    const std::string sources = "FwVersion=answer3 IspVersion=answer1 AfVersion=answer0 AiVersion=answer2 "
                                "VideoFormat=answer4 IpAddr=net-IpAddr NetMask=net-NetMask GateWay=net-GateWay "
                                "Dns1=net-Dns1 Dns2=net-Dns2 IrisLevel=F1.8 DeviceName=answer5 DeviceType=PTZ-12X "
                                "SN=answer6 Mac=answer7 NdiVersion=answer8 FullNdiVersion=answer9 "
                                "NdiStatus=t.answer10 LedCustomColor=answer11 Unknown= ";
    std::string found;
    openPage(replaced(sources, R"((\w+)=\S* )", "<I Attr='STATUS' DataZone='Cam' ItemIndex='$1'/>"));
    for (const tagITEM_NODE_S* status : itemsOf(gstPageMgr.astPage[0])) {
        found += std::string(status->acItemIndex) + "=" + (status->s32ValCnt == 1 ? valueOf(*status) : "none") + " ";
    }
    EXPECT_EQ(found, sources);
    EXPECT_THAT(linesOf({"answer"}), Each(Not(EndsWith("stranger"))));
    stop(); // without a callback
    EXPECT_THAT(parsed("<I ItemIndex='SN' Ctx='NAME_VAL' Attr='STATUS'/>"), EndsWith(" STATUS [] = "));
}

TEST_F(BindTest, DataZoneIsAskedForOnce)
{
    gstMenuMgr.pfnGetDataZoneParent = dataZoneParent;
    for (const std::string attr : {"STATUS", "KEY_WITH_MSG", "COMMON", "EDITABLE", "SUBITEM"}) {
        for (const std::string context : {"NAME", "NAME_BAR_VAL", "NAME_VAL", "NAME_IP_VAL"}) {
            calls().lines.clear();
            openPage("<I ItemIndex='A' DataZone='Cam' Attr='" + attr + "' Ctx='" + context + "'/>");
            EXPECT_THAT(linesOf({"zone"}), SizeIs(context == "NAME" ? 0 : 1)) << attr << " " << context;
            (void)osdMenuReleaseSinglePage();
        }
    }
}
