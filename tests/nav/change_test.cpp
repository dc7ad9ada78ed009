// Which changes are committed and reach the host, the colour text, the host's questions, and another language.
#include "tests/nav/nav_test.h"

using namespace fake;
using ChangeTest = NavTest;

TEST_F(ChangeTest, HeldModesAndConfirmedPages)
{
    setPages(R"(
        network ConfirmBtn="Yes":
            <I ItemIndex="IpMode" Attr="SUBITEM"> <O ModeIndex="DhcpIp"/> <O ModeIndex="StaticIp"/> </I>
            <I ItemIndex="DnsMode" Attr="MSG_WITH_SUBITEM"> <O ModeIndex="AutoMode"/> <O ModeIndex="Manual"/> </I>
            <I ItemIndex="Gain"/>
        other ConfirmBtn="Yes":
            <I ItemIndex="IpMode" Attr="SUBITEM"> <O ModeIndex="DhcpIp"/>
                <O ModeIndex="StaticIp"> <I ItemIndex="Zoom" ValType="NUMERICAL"/> </O> </I>
            <I ItemIndex="DnsMode" Attr="MSG_WITH_SUBITEM"> <O ModeIndex="AutoMode"/> <O ModeIndex="Manual"/> </I>
            <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/>
        alone ConfirmBtn="Yes":
            <I ItemIndex="DnsMode" Attr="MSG_WITH_SUBITEM"> <O ModeIndex="AutoMode"/> <O ModeIndex="Manual"/> </I>
    )");
    check(R"(
        list
        left_update         | > Zoom 6 of 0..10
        then set            | sets Zoom to 6         | > Zoom 6 of 0..10
        down down right set | > Wait C, was B --- Press
        up up up set        | sets Ip to 192.168.1.5 | > Ip 192.168.1.5
        up up set           | > Mode A
        up set              | passes More            | > More
        network
        right down                 | IpMode StaticIp, was DhcpIp; > DnsMode AutoMode
        then right                 | sets DnsMode to Manual     | IpMode StaticIp, was DhcpIp; > DnsMode Manual
        down right_update          | > DnsMode Manual
        IpMode=StaticIp refresh left down right | IpMode DhcpIp, was StaticIp; > DnsMode Manual, was AutoMode --- Press
        then home                  | no redraw | IpMode DhcpIp, was StaticIp; > DnsMode Manual, was AutoMode --- Press
        then set                   | IpMode DhcpIp, was StaticIp; > DnsMode Manual, was AutoMode --- Press
        down set                   | sets DnsMode to AutoMode   | > DnsMode AutoMode
        up right set               | sets Gain to Low, was Auto | > Gain Low, was Auto
        other
        up right                   | > Wait C, was B --- Press
        then set                   | no redraw              | > Wait C, was B --- Press
        then home                  | sets Wait to C         | > Wait C
        then set                   | no redraw              | > Wait C
        Zoom=4 right               | > IpMode StaticIp, was DhcpIp; Zoom 4 of 0..10; DnsMode AutoMode; Wait B
        right down right Zoom=5 up | > IpMode StaticIp, was DhcpIp; Zoom 5 of 0..10; DnsMode AutoMode; Wait B
        IpMode=StaticIp refresh down down right | sets DnsMode to Manual | IpMode StaticIp; Zoom 9 of 0..10;
            | > DnsMode Manual; Wait B
        alone
        right | sets DnsMode to Manual | > DnsMode Manual
    )");
}

// The neighbour is the one of the list that was flattened last, not of what the records say by now.
TEST_F(ChangeTest, NeighbourOfTheLastList)
{
    tagPAGE_NODE_S* page = openPage(R"(<I ItemIndex="IpMode" Attr="SUBITEM"> <O ModeIndex="DhcpIp"/>
            <O ModeIndex="StaticIp"> <I ItemIndex="Zoom" ValType="NUMERICAL"/> </O> </I>
        <I ItemIndex="DnsMode" Attr="SUBITEM"> <O ModeIndex="AutoMode"/> </I>)");
    tagITEM_NODE_S* mode = itemAt(page->stItemList, 0);
    tagITEM_NODE_S* dns = itemAt(page->stItemList, 1);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0) << "never in a list";
    (void)osdMenuGetSelectedItem(page);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0);
    mode->s32CurIdx = mode->s32SavedIdx = 1; // brings an item between them, once the list is built anew
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 1);
    platform().language = "German";
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0) << "the label counts, in the language of now";
    platform().language = "English";
    (void)osdMenuGetSelectedItem(page);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0);

    tagITEM_NODE_S before = {}; // items that stand on no page
    tagITEM_NODE_S behind = {};
    setField(before.acItemIndex, "IpMode");
    setField(before.acValue[0], "StaticIp");
    before.s32ValCnt = 1;
    setField(behind.acItemIndex, "DnsMode");
    before.stTmpNode = {&behind.stTmpNode, &behind.stTmpNode};
    behind.stTmpNode = {&before.stTmpNode, &before.stTmpNode};
    EXPECT_EQ(osdXmlIsStaticOfNetMode(&behind), 1) << "there the link is taken as it stands";
    setField(before.acItemIndex, "Other");
    EXPECT_EQ(osdXmlIsStaticOfNetMode(&behind), 0);
    list_head head = {&head, &head};
    EXPECT_EQ(osdMenuInsertItems2TmpList(&behind, &head), 0);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(&behind), 0) << "the first of its list";
}

TEST_F(ChangeTest, ColourText)
{
    setNumber("LedCustomColor", 0, 0xFFFFFF, 153, 0x123456); // red 18, green 52
    platform().answers[OSD_MENU_GET_LED_CUSTOM_COLOR] = "1a3456";
    platform().host = [](tagITEM_NODE_S*) { platform().answers[OSD_MENU_GET_LED_CUSTOM_COLOR] = "FEDCBA"; };
    setPages(R"(
        tally Layout="vertical_align_keth": <I ItemIndex="LedCustomRed" ValType="NUMERICAL"/>
            <I ItemIndex="LedCustomGreen" ValType="NUMERICAL"/> <I ItemIndex="Gain"/>
            <I ItemIndex="LedCustomColor" Attr="STATUS"/>
        other Layout="vertical_align_keth": <I ItemIndex="LedCustomRed" ValType="NUMERICAL"/>
    )");
    check(R"(
        tally
        right_update      | > LedCustomRed 171 of 0..255; LedCustomColor AB3456
        down right_update | > LedCustomGreen 205 of 0..255; LedCustomColor 1ACD56
        right             | > LedCustomRed 171 of 0..255; LedCustomColor FEDCBA
        down right        | > LedCustomGreen 205 of 0..255; LedCustomColor FEDCBA
        down down right   | > Gain Low
        other
        right_update       | > LedCustomRed 171 of 0..255
        then right_update  | > LedCustomRed 0 of 0..255
    )");
}

TEST_F(ChangeTest, Questions)
{
    const std::string both = R"(<I ItemIndex="ViewFollowExposure"/> <I ItemIndex="ViewFollowWB"/>)";
    for (const char* key : {"ViewFollowExposure", "ViewFollowWB"}) {
        setText(key, "Off:On", "Off");
    }
    for (const std::string name : {"exposure", "wblance", "network", "networks"}) {
        setPage(name, both);
        openAll(name);
        EXPECT_EQ(press("is_exposure") + press("is_wb"), 0);
        EXPECT_EQ(press("is_network"), name == "network" ? 1 : 0);
        EXPECT_EQ(press("right is_exposure"), name == "exposure" ? 1 : 0);
        EXPECT_EQ(press("down right is_wb"), name == "wblance" ? 1 : 0);
    }
    openAll("closed");
    EXPECT_EQ(press("is_exposure") + press("is_wb") + press("is_network"), 0);
    setPage("exposure", both, "ConfirmBtn='Yes'"); // not committed
    openAll("exposure");
    EXPECT_EQ(press("right is_exposure"), 0);
    setPages(
        R"(wblance: <I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A"> <I ItemIndex="ViewFollowWB"/> </O> </I>)");
    openAll("wblance");
    EXPECT_EQ(press("down right is_wb"), 0) << "below another item";
}

TEST_F(ChangeTest, AnotherLanguage)
{
    setText("Language", "English:German", "English");
    platform().host = [](tagITEM_NODE_S* item) {
        platform().language = item->s32SavedIdx == item->s32CurIdx ? item->acValueKey[item->s32CurIdx] : "early";
    };
    setPages(R"(
        main Title="Top" TitlePos="Left": <I ItemIndex="Gain" Ctx="NAME_IP_VAL"/>
            <I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A"> <I ItemIndex="Gain"/> </O> </I>
            <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/> <I ItemIndex="Pop" Attr="CONFIRM_POP"/>
            <I ItemIndex="Push" Attr="CONFIRM" Ctx="NAME_VAL"/> <I ItemIndex="More" Attr="SUBPAGE" SubPage="sub"/>
            <I ItemIndex="SN" Attr="STATUS"/> <I ItemIndex="Zoom" ValType="NUMERICAL"/>
        sub: <I ItemIndex="Language"/>
    )");
    const auto texts = [] { // of the page below
        std::vector<std::string> all = {gstPageMgr.astPage[0].acTitle, itemOf("Wait").acMsg};
        for (const tagITEM_NODE_S* item : itemsOf(gstPageMgr.astPage[0])) {
            all.push_back(squeezed(item->acItemName + (" " + valueOf(*item))));
        }
        return joined(all, "; ") + "; " + valueOf(itemOf("Language", 1));
    };
    openAll("main / sub");
    failCall("language");
    (void)press("right");
    EXPECT_EQ(texts(),
              "Top; Press; Gain Auto; Mode A; Gain Auto; Wait B; Pop Go; Push Go; More; SN; Zoom 9 of 0..10; German");
    (void)press("left_update");
    EXPECT_THAT(texts(), testing::EndsWith("; d.English")) << "also without the host";
    platform().language = "English";
    openAll("main / sub");
    EXPECT_EQ(pressed("right"), "");
    EXPECT_EQ(texts(),
              "d.Top; d.Press; d.Gain Auto; d.Mode A; Gain Auto; d.Wait B; d.Pop d.Go; d.Push Go; d.More; d.SN; "
              "d.Zoom 9 of 0..10; d.German")
        << "behind the host's function";
}
