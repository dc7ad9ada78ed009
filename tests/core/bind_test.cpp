// Values of items: first binding, status sources, parents of data zones, reading again.
#include <sstream>

#include "menu/core/value_bind.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::EndsWith;

class BindTest : public MenuTest {
protected:
    // Opens a page of one item, "Ctx" NAME_VAL unless given.
    tagITEM_NODE_S* bind(const std::string& attributes, const std::string& children = "")
    {
        const std::string context = attributes.find("Ctx=") == std::string::npos ? " Ctx='NAME_VAL' " : " ";
        const tagPAGE_NODE_S* page =
            open("p", "<P Layout='vertical_align'><I" + context + attributes + ">" + children + "</I></P>");
        return itemAt(page->stItemList, 0);
    }
};

TEST_F(BindTest, ValuesByAttributeAndType)
{
    setText("Gain", "Auto:Low:High", "Low");
    setText("Odd", "Auto:Low:High", "Medium");
    setText("Twice", "On:Off:On", "On");
    setText("Empty", "", "On");
    setText("Addr", "", "192.168.1.20");
    setNumber("Zoom", -10, 90, 5, 40);
    setNumber("LedCustomColor", 3, 0xFFFFFF, 2, 0x123456);
    platform().untranslated = {"High"};
    const struct {
        const char* attributes;
        const char* value;
        const char* printed;
    } cases[] = {
        {"ItemIndex='Gain' Attr='COMMON'", " [Auto|t.Auto][Low|t.Low][High|] cur=1 saved=1", ""},
        {"ItemIndex='Gain' Attr='KEY_WITH_MSG' Msg='m'", " msg=m|t.m [Auto|t.Auto][Low|t.Low][High|] cur=1 saved=1",
         ""},
        {"ItemIndex='Gain' Attr='COMMON' Ctx='NAME'", "", ""},
        {"ItemIndex='Gain' Attr='COMMON' Ctx='ICON_TXT'", "", ""},
        {"ItemIndex='Odd' Attr='COMMON'", " [Auto|t.Auto][Low|t.Low][High|]", ""},
        {"ItemIndex='Twice' Attr='COMMON'", " [On|t.On][Off|t.Off][On|t.On] cur=2 saved=2", ""},
        {"ItemIndex='Empty' Attr='COMMON'", " [|t.]", ""},
        {"ItemIndex='Zoom' Attr='COMMON' Ctx='NAME_BAR_VAL' ValType='NUMERICAL'", " -10..90/5=40,40", ""},
        {"ItemIndex='LedCustomRed' Attr='COMMON' ValType='NUMERICAL'", " 3..255/2=18,18", ""},
        {"ItemIndex='LedCustomGreen' Attr='COMMON' ValType='NUMERICAL'", " 3..255/2=52,52", ""},
        {"ItemIndex='LedCustomBlue' Attr='COMMON' ValType='NUMERICAL'", " 0..0/0=0,0", ""},
        {"ItemIndex='Addr' Attr='EDITABLE' Ctx='NAME_IP_VAL' ValType='EDITTXT'", " [192.168.1.20][192.168.1.20]", ""},
        {"ItemIndex='Run' Attr='CONFIRM' Value='Go'", " [Go|t.Go]", ""},
        {"ItemIndex='Run' Attr='CONFIRM' Value='High'", " [High|]", ""},
        {"ItemIndex='Run' Attr='CONFIRM'", "", ""},
        {"ItemIndex='Run' Attr='CONFIRM_POP' Value='Go' ConfirmPage='c'", " asks=c [Go|t.Go]", ""},
        {"ItemIndex='Run' Attr='CONFIRM_POP' Value='Go'", "", "F L failed\n"},
        {"ItemIndex='Run' Attr='CONFIRM_POP' ConfirmPage='c'", "", ""},
        {"ItemIndex='Run' Attr='CONFIRM_POP_BTN' ConfirmPage='c' Value='Go'", " asks=c", ""},
    };
    for (const auto& c : cases) {
        const tagITEM_NODE_S* item = nullptr;
        EXPECT_EQ(printed([&] { item = bind(c.attributes); }), std::string("[F:L] \n") + c.printed) << c.attributes;
        EXPECT_THAT(describe(*item), EndsWith(std::string("active=1") + c.value)) << c.attributes;
        stop();
    }
    EXPECT_EQ(bind("ItemIndex='Zoom' Attr='COMMON' ValType='NUMERICAL'")->s32Reserved, 7);
}

TEST_F(BindTest, StatusSources)
{
    for (int event = 0; event <= 11; event++) {
        platform().answers[event] = "answer" + std::to_string(event);
    }
    platform().deviceType = "PTZ-12X";
    for (const char* key : {"IpAddr", "NetMask", "GateWay", "Dns1", "Dns2"}) {
        setText(std::string("NetCard0/") + key, "", (std::string("net-") + key).c_str());
    }
    setText("Panorama/IrisLevel", "", "F1.8");
    platform().parents = {{"Cam", "Elsewhere"}}; // plays no part
    start({0, 2, 0, {0.0f, 0.0f, 0.2f, 0.2f}, true});
    std::istringstream cases("FwVersion=answer3 IspVersion=answer1 AfVersion=answer0 AiVersion=answer2 "
                             "VideoFormat=answer4 IpAddr=net-IpAddr NetMask=net-NetMask GateWay=net-GateWay "
                             "Dns1=net-Dns1 Dns2=net-Dns2 IrisLevel=F1.8 DeviceName=answer5 DeviceType=PTZ-12X "
                             "SN=answer6 Mac=answer7 NdiVersion=answer8 FullNdiVersion=answer9 NdiStatus=t.answer10 "
                             "LedCustomColor=answer11 Unknown=");
    for (std::string key, text; std::getline(cases, key, '=') && (std::getline(cases, text, ' ') || true);) {
        const tagITEM_NODE_S* item = bind("DataZone='Cam' Attr='STATUS' ItemIndex='" + key + "'");
        EXPECT_EQ(item->acValue[0], text) << key;
        EXPECT_EQ(item->s32ValCnt, 1) << key;
        stop();
        (void)Osd_GetVersionCallback(answer, &platform());
    }
    EXPECT_THAT(linesOf({"answer"}), testing::SizeIs(12));
    EXPECT_THAT(linesOf({"answer"}), testing::Not(testing::Contains(testing::HasSubstr("stranger"))));

    gs_OsdHandler = {};
    EXPECT_STREQ(bind("Attr='STATUS' ItemIndex='SN'")->acValue[0], "") << "no callback";
    platform().answers[6] = std::string(4000, 's');
    (void)Osd_GetVersionCallback(answer, &platform());
    EXPECT_EQ(bind("Attr='STATUS' ItemIndex='SN'")->acValue[0], std::string(31, 's')) << "31 bytes are shown";
}

TEST_F(BindTest, ParentOfTheDataZone)
{
    platform().parents = {{"Cam", "Camera0"}, {"", "Default"}};
    setNumber("Camera0/LedCustomColor", 0, 0, 1, 0x00FE00);
    const std::string text = "ItemIndex='Gain' Attr='COMMON' ";
    const struct {
        bool callback;
        std::string attributes;
        const char* looked;
    } cases[] = {{false, text + "DataZone='Cam'", "text Gain"},
                 {true, text + "DataZone='Cam'", "text Camera0/Gain"},
                 {true, text + "DataZone='None'", "text Gain"},
                 {true, text, "text Default/Gain"},
                 {true, text + "ValType='NUMERICAL' DataZone='Cam'", "number Camera0/Gain"},
                 {true, "ItemIndex='Ip' Attr='EDITABLE' DataZone='Cam'", "text Camera0/Ip"},
                 {true, "ItemIndex='On' Attr='SUBITEM' DataZone='Cam'", "text Camera0/On"},
                 {true, "ItemIndex='LedCustomGreen' ValType='NUMERICAL' Attr='COMMON' DataZone='Cam'",
                  "number Camera0/LedCustomColor"}};
    for (const auto& c : cases) {
        start({0, 2, 0, {0.0f, 0.0f, 0.2f, 0.2f}, c.callback});
        tagITEM_NODE_S* item = bind(c.attributes);
        EXPECT_THAT(linesOf({"text ", "number "}), ElementsAre(c.looked));
        calls().lines.clear();
        EXPECT_EQ(osdMenuGetItemValue(item), 0); // the same place again
        EXPECT_THAT(linesOf({"text ", "number "}), ElementsAre(c.looked));
        stop();
    }
}

TEST_F(BindTest, ReadingAgain)
{
    setText("Gain", "Auto:Low:High", "Low");
    tagITEM_NODE_S* option = bind("ItemIndex='Gain' Attr='COMMON'");
    setText("Gain", "Other:List", "High");
    EXPECT_EQ(osdMenuGetItemValue(option), 0);
    EXPECT_THAT(describe(*option), EndsWith(" [Auto|t.Auto][Low|t.Low][High|t.High] cur=2 saved=2"));
    setText("Gain", "", "Medium");
    option->s32CurIdx = 1; // an equal key is missing: both stay
    EXPECT_EQ(osdMenuGetItemValue(option), 0);
    EXPECT_THAT(describe(*option), EndsWith("cur=1 saved=2"));
    stop();

    setNumber("Zoom", 0, 90, 5, 40);
    tagITEM_NODE_S* number = bind("ItemIndex='Zoom' Attr='COMMON' ValType='NUMERICAL' Ctx='NAME'"); // any context
    setNumber("Zoom", 1, 2, 3, 55);
    EXPECT_EQ(osdMenuGetItemValue(number), 0);
    EXPECT_THAT(describe(*number), EndsWith(" 0..0/0=55,55"));
    stop();

    setNumber("LedCustomColor", 0, 0, 1, 0x123456);
    tagITEM_NODE_S* red = bind("ItemIndex='LedCustomRed' Attr='COMMON' ValType='NUMERICAL'");
    setNumber("LedCustomColor", 9, 9, 9, 0xFF0000);
    EXPECT_EQ(osdMenuGetItemValue(red), 0);
    EXPECT_THAT(describe(*red), EndsWith(" 0..255/1=255,255"));
    stop();

    setText("Ip", "", "10.0.0.1");
    tagITEM_NODE_S* address = bind("ItemIndex='Ip' Attr='EDITABLE' ValType='EDITTXT'");
    setText("Ip", "", "10.0.0.2");
    EXPECT_EQ(osdMenuGetItemValue(address), 0);
    EXPECT_THAT(describe(*address), EndsWith(" [10.0.0.1][10.0.0.1]"));
    osdXmlFillEditableValue(address);
    EXPECT_THAT(describe(*address), EndsWith(" [10.0.0.2][10.0.0.2]"));
}

TEST_F(BindTest, SubItemsOfTheOptionInForceAreReadAgain)
{
    setText("Mode", "", "B");
    const std::string common = " Ctx='NAME_VAL' Attr='COMMON' ValType='NUMERICAL'/>";
    tagITEM_NODE_S* item =
        bind("ItemIndex='Mode' Attr='SUBITEM'",
             "<O ModeIndex='A'><I ItemIndex='InA'" + common +
                 "</O><O ModeIndex='B'>"
                 "<I ItemIndex='N'" +
                 common +
                 "<I ItemIndex='Bare' Ctx='NAME' Attr='COMMON' ValType='NUMERICAL'/>"
                 "<I ItemIndex='Ip' Ctx='NAME_IP_VAL' Attr='EDITABLE' ValType='EDITTXT'/>"
                 "<I ItemIndex='Key' Ctx='NAME_VAL' Attr='KEY_WITH_MSG' Msg='m'/>"
                 "<I ItemIndex='SN' Ctx='NAME_VAL' Attr='STATUS'/>"
                 "<I ItemIndex='Deep' Ctx='NAME_VAL' Attr='MSG_WITH_SUBITEM' Msg='m'><O ModeIndex='X'/>"
                 "<O ModeIndex='Y'><I ItemIndex='Below'" +
                 common + "</O></I></O>");
    setText("Deep", "", "Y"); // its sub-items follow the option as just read
    calls().lines.clear();
    EXPECT_EQ(printed([&] { EXPECT_EQ(osdMenuUpdateSubItems(item), 0); }),
              "[F:L] INDEX N \n[F:L] INDEX Bare \n[F:L] INDEX Ip \n[F:L] INDEX Key \n[F:L] INDEX SN \n"
              "[F:L] INDEX Deep \n");
    EXPECT_THAT(linesOf({"text", "number", "answer"}), ElementsAre("number N", "text Ip", "text Deep", "number Below"));

    item->s32CurIdx = 7;
    EXPECT_EQ(osdMenuUpdateSubItems(item), 0) << "no such option, no sub-items";
    item->enAttr = COMMON;
    EXPECT_EQ(osdMenuUpdateSubItems(item), -1);
    item->enAttr = SUBITEM;
}

TEST_F(BindTest, TranslatedValueFallsBackToTheValue)
{
    setText("Gain", "", "fifteen bytes..");
    tagITEM_NODE_S item = {};
    char language[OSD_TEXT_LEN] = "English";
    setField(item.acItemIndex, "Gain");
    EXPECT_EQ(osdMenuGetTranslatedValue(&item, language), 0);
    EXPECT_STREQ(item.acValue[0], "t.fifteen bytes..");
    platform().untranslated = {"fifteen bytes.."};
    EXPECT_EQ(osdMenuGetTranslatedValue(&item, language), 0);
    EXPECT_STREQ(item.acValue[0], "fifteen bytes..");
}

TEST_F(BindTest, MoreThan32OptionsStayInBounds)
{
    std::string list = "k0";
    for (int option = 1; option < 60; option++) {
        list += ":k" + std::to_string(option);
    }
    setText("Gain", list.c_str(), "k59");
    const tagITEM_NODE_S* item = nullptr;
    (void)printed([&] { item = bind("ItemIndex='Gain' Attr='COMMON'"); });
    EXPECT_LE(item->s32ValCnt, 32);
    EXPECT_GE(item->s32CurIdx, 0);
    EXPECT_LT(item->s32CurIdx, std::max(item->s32ValCnt, 1));
}
