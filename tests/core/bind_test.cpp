// Values of items: first binding, status sources, the configuration's lists.
#include "osd_xml.h"
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
    const std::string bound = "[Auto t.Auto] [Low t.Low] [High] [Low t.Low] = t.Low";
    const std::string table = R"(
        Gain Ctx='NAME_VAL' Attr='COMMON'                         | NAME_VAL COMMON BOUND
        Gain Ctx='NAME' Attr='COMMON'                             | NAME COMMON
        Gain Ctx='NAME_VAL' Attr='KEY_WITH_MSG' Msg='m'           | NAME_VAL KEY_WITH_MSG Msg=m reads=t.m BOUND
        Zoom Ctx='NAME_BAR_VAL' Attr='COMMON' ValType='NUMERICAL' | NAME_BAR_VAL COMMON ValType=NUMERICAL
            = 40 of -10..90 by 5
        LedCustomRed Ctx='NAME_VAL' Attr='COMMON' ValType='NUMERICAL'   | NAME_VAL COMMON ValType=NUMERICAL
            = 18 of 3..255 by 2
        LedCustomGreen Ctx='NAME_VAL' Attr='COMMON' ValType='NUMERICAL' | NAME_VAL COMMON ValType=NUMERICAL
            = 52 of 3..255 by 2
        Addr Ctx='NAME_IP_VAL' Attr='EDITABLE'                    | NAME_IP_VAL EDITABLE = 192.168.1.20
        Run Ctx='NAME_VAL' Attr='CONFIRM' Value='Go'              | NAME_VAL CONFIRM [Go t.Go] = t.Go
        Run Ctx='NAME_VAL' Attr='CONFIRM_POP' Value='Go' ConfirmPage='c' | NAME_VAL CONFIRM_POP ConfirmPage=c
            [Go t.Go] = t.Go
        Run Ctx='NAME_VAL' Attr='CONFIRM_POP' Value='Go'          | NAME_VAL CONFIRM_POP
        Run Ctx='NAME_VAL' Attr='CONFIRM_POP_BTN' Value='Go' ConfirmPage='c' | NAME_VAL CONFIRM_POP_BTN ConfirmPage=c
    )";
    for (const std::string& line : linesIn(replaced(replaced(table, R"(\n +(=|\[))", " $1"), "BOUND", bound))) {
        const std::vector<std::string> row = matched(squeezed(line), R"((\w+) (.*) \| (.*))");
        EXPECT_THAT(parsed("<I ItemIndex='" + row[0] + "' " + row[1] + "/>"), EndsWith(") " + row[2])) << line;
    }
    std::string list = "k0"; // of more options than fit
    for (int option = 1; option < 60; option++) {
        list += ":k" + std::to_string(option);
    }
    setText("Gain", list.c_str(), "k31");
    const tagITEM_NODE_S* gain = opened("<I ItemIndex='Gain'/>");
    EXPECT_EQ(gain->s32ValCnt, 32);
    EXPECT_THAT(describe(*gain), AllOf(HasSubstr(" [k0 t.k0] [k1 t.k1]"), EndsWith("[k31 t.k31] = t.k31")));
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
                                "NdiStatus=t.answer10 LedCustomColor=answer11 Unknown=";
    std::istringstream in(sources);
    for (std::string source; in >> source;) {
        const size_t end = source.find('=');
        const auto* status = opened("<I Attr='STATUS' DataZone='Cam' ItemIndex='" + source.substr(0, end) + "'/>");
        EXPECT_EQ(valueOf(*status), source.substr(end + 1)) << source;
        EXPECT_EQ(status->s32ValCnt, 1) << source;
        (void)osdMenuReleaseSinglePage();
    }
    EXPECT_THAT(linesOf({"answer"}), Each(Not(EndsWith("stranger"))));
    stop(); // without a callback
    EXPECT_THAT(parsed("<I ItemIndex='SN' Ctx='NAME_VAL' Attr='STATUS'/>"), EndsWith(" STATUS [] = "));
}

// What the host sees of an item that is bound: its data zone is asked for once, and the element needn't be there.
TEST_F(BindTest, HostSeesOneQuestion)
{
    static std::vector<std::string> asked;
    char language[OSD_TEXT_LEN] = "English";
    gstMenuMgr.pfnGetDataZoneParent = [](const char* zone) -> const char* {
        asked.emplace_back(zone);
        return nullptr;
    };
    for (const tagITEM_ATTR_E attr :
         {CONST_TXT, STATUS, KEY_WITH_MSG, COMMON, EDITABLE, CONFIRM_POP_BTN, SUBITEM, SUBPAGE, MSG_WITH_SUBITEM}) {
        for (const tagITEM_CTX_E context : {NAME, NAME_BAR_VAL, NAME_VAL, NAME_IP_VAL}) {
            asked.clear();
            tagITEM_NODE_S item = {};
            item.enAttr = attr;
            item.enCtx = context;
            item.enValType = OPTTXT;
            setField(item.acDataZone, "Cam");
            EXPECT_EQ(osdXmlFillItemParam(language, nullptr, &item), 0);
            EXPECT_EQ(asked, std::vector<std::string>(context == NAME ? 0 : 1, "Cam")) << attr << " " << context;
        }
    }
    tagITEM_NODE_S status = {};
    status.enAttr = STATUS;
    status.enCtx = NAME_VAL;
    status.s32ValCnt = 7;
    setField(status.acItemIndex, "SN");
    (void)Osd_GetVersionCallback(
        [](void* item, tagOSD_MENU_GET_EVENT_E, tagOSD_MENU_CONTROL_PARAM_S* block) {
            EXPECT_EQ(static_cast<tagITEM_NODE_S*>(item)->s32ValCnt, 7) << "the text comes first";
            snprintf(block->acText, sizeof block->acText, "123");
        },
        &status);
    EXPECT_EQ(osdXmlFillItemParam(language, nullptr, &status), 0);
    EXPECT_EQ(status.s32ValCnt, 1);
    EXPECT_STREQ(status.acValue[0], "123");
}
