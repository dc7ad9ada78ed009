// The home key: its rules in their order, and the answers on confirm pages.
#include "tests/nav/nav_test.h"

using namespace fake;

class HomeTest : public NavTest {
protected:
    void SetUp() override
    {
        NavTest::SetUp();
        for (const char* word : {"Loading", "Finish", "Confirm", "Go", "Press"}) {
            platform().words[word] = std::string(1, static_cast<char>(tolower(*word))) + (word + 1); // as people see it
        }
    }
};

TEST_F(HomeTest, RulesInTheirOrder)
{
    setPages(R"(
        opens: <I ItemIndex="More" Attr="SUBPAGE" SubPage="advanced"/>
            <I ItemIndex="Pop" Attr="CONFIRM_POP"/> <I ItemIndex="Confirm" Attr="CONFIRM_POP_BTN"/>
        this_confirms_restart: <I ItemIndex="More" Attr="SUBPAGE" SubPage="advanced"/>
            <I ItemIndex="Pop" Attr="CONFIRM_POP"/> <I ItemIndex="No" Attr="CONFIRM"/>
        restart: <I ItemIndex="More" Attr="SUBPAGE" SubPage="advanced"/> <I ItemIndex="Other" Attr="CONFIRM"/>
        push: <I ItemIndex="Push" Attr="CONFIRM" Ctx="NAME_VAL"/>
            <I ItemIndex="Back" Attr="CONFIRM" Ctx="NAME_VAL" PicType="SUBTYPE"/>
            <I ItemIndex="Any" Attr="CONFIRM" Ctx="NAME_VAL" PicType="MAINTYPE"/>
    )");
    check(R"(
        opens
        home      | reads advanced                   | opens at More / advanced: > Gain Auto
        down home | shows Pop loading, reads confirm | opens at Pop loading / confirm: > Yes; No; Other
        up home   | shows confirm, reads confirm     | opens at confirm / confirm: > Yes; No; Other
        opens / this_confirms_restart
        home        | reads advanced | opens at More / this_confirms_restart at More / advanced: > Gain Auto
        down home   | shows Pop loading, reads confirm
            | opens at More / this_confirms_restart at Pop loading / confirm: > Yes; No; Other
        then return | > Pop loading
        up home     | opens: > More confirm; Pop go; confirm
        opens / restart
        home    | reads advanced | opens at More / restart at More / advanced: > Gain Auto
        up home | no redraw      | > Other
        push
        home      | shows Push loading, presses Push loading | > Push go
        down home | presses Back go, no redraw               | > Back go
        up home   | presses Any go, no redraw                | > Any go
        list
        down down home       | no redraw      | > Wait B
        down down right home | sets Wait to C | > Wait C
        then home            | no redraw      | > Wait C
        up up right home     | sets Mode to B | > Mode B
        down home            | > Gain Auto
        up up up up home     | > SN
    )");
    platform().untranslated = {"Loading"};
    openAll("push");
    EXPECT_EQ(pressed("home"), "shows Push ..., presses Push ...");
    platform().host = [](tagITEM_NODE_S* item) { item->s32CurIdx = 2; };
    (void)pressed("home");
    EXPECT_STREQ(itemOf("Push").acValue[2], "go") << "where the option is by then";
    openAll("push");
    platform().host = [](tagITEM_NODE_S* item) { item->s32CurIdx = OSD_OPTION_MAX; };
    (void)pressed("home");
    EXPECT_STREQ(itemOf("Push").acValueKey[0], "Go") << "there is no such option";
    failCall("language");
    EXPECT_EQ(pressed("home"), "fails");
}

TEST_F(HomeTest, AnswersForOneItem)
{
    for (const auto& [key, page] :
         {std::pair("FactoryRestore", "p"), {"Restart", "network"}, {"LensCorrection", "video"}}) {
        setPage(page, format("<I ItemIndex='%s' Attr='CONFIRM_POP'/> <I ItemIndex='Gain'/>", key));
        const std::string text = R"(
            PAGE
            home                | shows KEY loading, reads confirm | PAGE at KEY loading / confirm: > Yes; No; Other
            then Gain=High home | shows KEY finish, presses KEY finish, waits 1 s | > KEY confirm
            home down home      | > KEY confirm
            home up home        | no redraw | PAGE at KEY loading / confirm: Yes; No; > Other
        )";
        check(replaced(replaced(text, "KEY", key), "PAGE", page));
    }
    setPage("p", R"(<I ItemIndex="RestoreImg" Attr="CONFIRM_POP"/> <I ItemIndex="Gain"/>)");
    check(R"(
        p
        Gain=High home home      | presses RestoreImg loading, waits 1 s | > RestoreImg confirm; Gain High
        Gain=High home down home | > RestoreImg confirm
        home up home             | no redraw | p at RestoreImg loading / confirm: Yes; No; > Other
    )");
    for (const std::string key : {"FactoryRestore", "RestoreImg"}) { // no language: nothing is done
        setPage("p", "<I ItemIndex='" + key + "' Attr='CONFIRM_POP'/>");
        openAll("p");
        (void)pressed("home");
        const auto answer = key[0] == 'F' ? OSD_MENU_FactoryRestoreHandleHomeKey : OSD_MENU_IspHandleHomeKey;
        failCall("language");
        EXPECT_EQ(printed([&] { EXPECT_EQ(answer(&itemOf("Yes", 1), osdXmlGetCurPage()), -1); }), "F L failed\n");
        failCall("language", 2); // the first is the key's own
        EXPECT_EQ(pressed("home"), "no redraw");
        EXPECT_EQ(screen()[0], "p at " + key + " loading / confirm");
    }
}

TEST_F(HomeTest, AnswersForAPage)
{
    (void)press("IpMode=StaticIp Dns=8.8.8.8");
    setText("Dns", "", "8.8.8.8");
    platform().host = [](tagITEM_NODE_S* item) {
        record("host " + handed(*item));
        EXPECT_EQ(gstPageMgr.s32PageCnt, 1) << "the confirm page has gone before";
    };
    setPages(R"(
        network ConfirmBtn="Yes": <I ItemIndex="Zoom" ValType="NUMERICAL"/>
            <I ItemIndex="IpMode" Attr="SUBITEM"> <O ModeIndex="DhcpIp"/> <O ModeIndex="StaticIp">
                <I ItemIndex="Ip" Attr="EDITABLE"/>
                <I ItemIndex="DnsMode" Attr="SUBITEM">
                    <O ModeIndex="AutoMode"> <I ItemIndex="Dns" Attr="EDITABLE"/> </O> <O ModeIndex="Manual"/> </I>
                <I ItemIndex="Gain"/> </O> </I>
            <I ItemIndex="Confirm" Attr="CONFIRM_POP_BTN"/> <I ItemIndex="Last"/>
    )");
    const std::string edit = "right down down home up home down down home right up home up up up up up right up home ";
    check(replaced(R"(
        network
        EDIT down home | Zoom 0 of 0..10, was 9; Ip 292.168.1.5, was 192.168.1.5;
            | Dns 18.8.8.8, was 8.8.8.8; > confirm; Last Y, was X
        EDIT home | sets Zoom to 0, was 9, sets IpMode to StaticIp, sets Ip to 292.168.1.5, sets DnsMode to AutoMode,
            | sets Dns to 18.8.8.8, sets Gain to Auto, presses Confirm
            | Zoom 0 of 0..10, was 9; > IpMode StaticIp; Ip 292.168.1.5; Dns 18.8.8.8; > confirm; Last Y, was X
    )",
                   "EDIT", edit));
}

TEST_F(HomeTest, CursorBehindAnAutomaticMode)
{
    (void)press("IpMode=StaticIp");
    setPages(R"(
        network: <I ItemIndex="IpMode" Attr="SUBITEM"> <O ModeIndex="DhcpIp"/> <O ModeIndex="StaticIp">
            <I ItemIndex="DnsMode"/> <I ItemIndex="Sure" Attr="CONFIRM_POP_BTN"/> </O> </I>
    )");
    check(R"(
        network
        up home home | sets IpMode to StaticIp, sets DnsMode to AutoMode, presses Sure | > IpMode StaticIp
    )");
    setPages(R"(
        network: <I ItemIndex="Sure" Attr="CONFIRM_POP_BTN"/> <I ItemIndex="IpMode" Attr="SUBITEM">
            <O ModeIndex="DhcpIp"/> <O ModeIndex="StaticIp"> <I ItemIndex="DnsMode"/> </O> </I>
    )");
    check(R"(
        network
        home home    | presses Sure, sets IpMode to StaticIp, sets DnsMode to AutoMode | > Sure; > IpMode StaticIp
        home up home | no redraw | network at Sure / confirm: Yes; No; > Other
    )");
}

TEST_F(HomeTest, AnswersForPagesWithAConfirmItem)
{
    const std::string edit = "right up right up up left down home ";
    // page, key of "Confirm" afterwards, bytes behind it, calls of "Yes", of another "Yes"
    const std::string cases = R"(
        format | Confirm | | sets Gain to Low, sets Mode to A, sets Deep to A, NOTE, presses Confirm
            | sets Gain to Low, sets Mode to A, sets Deep to A, NOTE, presses Confirm
        rotate | Restart | | sets Gain to Low, sets Mode to A, NOTE, presses Restart
            | sets Gain to Low, sets Mode to A, NOTE, presses Restart, sets Last to Y
        pip | Pip | irm | STORED, stores '' as Note, stores '' as Confirm, presses Pip
            | STORED, stores '' as Note, stores '' as Pip, stores 'Y' as Last
        video | HdmiCfg | | STORED, stores 'A' as Deep, stores '' as Note, stores '' as Confirm, presses HdmiCfg
            | STORED, stores 'A' as Deep, stores '' as Note, stores '' as HdmiCfg, stores 'Y' as Last
    )";
    for (const std::vector<std::string>& c : tableIn(replaced(replaced(cases, "NOTE", "sets Note to option -1"),
                                                              "STORED", "stores 'Low' as Gain, stores 'A' as Mode"))) {
        const std::string answer = c[0] == "rotate" ? "restart" : "confirm";
        setPage(c[0],
                R"(<I ItemIndex="Gain"/> <I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A">
            <I ItemIndex="Deep" Attr="SUBITEM"> <O ModeIndex="A"> <I ItemIndex="Zoom" ValType="NUMERICAL"/> </O> </I>
            </O> </I> <I ItemIndex="Note" Attr="CONST_TXT"/> <I ItemIndex="Confirm" Attr="CONFIRM_POP_BTN"
            ConfirmPage=")" +
                    answer + R"("/> <I ItemIndex="Last"/>)",
                "ConfirmBtn='Yes'");
        const std::string rows = R"(
            PAGE
            EDIThome      | CALLS     | Gain Low; Note option -1; > confirm; Last Y, was X
            EDITdown home | Gain Low, was Auto; Note option -1, was none; > confirm; Last Y, was X
            EDITup home   | no redraw | PAGE at confirm / ASK: Yes; No; > Other
        )";
        const std::string filled = replaced(replaced(rows, "EDIT", edit), "CALLS", c[3]);
        check(replaced(replaced(filled, "PAGE", c[0]), "ASK", answer));
        openAll(c[0]);
        (void)pressed(edit + "home");
        EXPECT_EQ(itemOf(c[1]).acItemIndex + c[1].size() + 1, c[2]);
        EXPECT_EQ(pressed("home home"), c[4]);
    }
}
