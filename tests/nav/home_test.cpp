// The home key: its rules in their order, and the answers on confirm pages.
#include "tests/nav/nav_test.h"

using namespace fake;
using HomeTest = NavTest;

static const char ANSWERS[] = "confirm = Yes. No. Other.\n restart = Yes. No. Other.\n";

TEST_F(HomeTest, RulesInTheirOrder)
{
    check(ANSWERS + std::string(R"(
        sub = G
        open = More>sub Go:confirm Btn+confirm
        this_confirms_restart = More>sub Go:confirm No.
        restart = More>sub Other.
        push = Push,CONFIRMTYPE Back,SUBTYPE Any,MAINTYPE
        wait = W! Mode{ (A ) (B ) ]
        plain = G F- S? Mode[ (A ) ]
        ; home; ;
        open; home; read sub, show sub.G; open.More / sub(G*)
        open; down | home; show open.Go='t.Loading', read confirm, show confirm.Yes; open.Go='t.Loading' / confirm(Yes* No Other)
        open; up | home; show open.Btn, read confirm, show confirm.Yes; open.Btn / confirm(Yes* No Other)
        open this_confirms_restart; home; read sub, show sub.G; open.More / this_confirms_restart.More / sub(G*)
        open this_confirms_restart; down | home return; show this_confirms_restart.Go='t.Loading', read confirm, show confirm.Yes, show this_confirms_restart.Go='t.Loading'; open.More / this_confirms_restart(More Go*='t.Loading' No)
        open this_confirms_restart; up | home; show open.More; open(More* Go='t.Go' Btn)
        open restart; home; read sub, show sub.G; open.More / restart.More / sub(G*)
        open restart; up | home; ; open.More / restart(More Other*)
        push; home; show push.Push='t.Loading', do Push='t.Loading', show push.Push='t.Go'; push(Push*='t.Go' Back='t.Go' Any='t.Go')
        push; down | home; do Back='t.Go'; push(Push='t.Go' Back*='t.Go' Any='t.Go')
        push; up | home; do Any='t.Go'; push(Push='t.Go' Back='t.Go' Any*='t.Go')
        wait; home right home home; show wait.W=2/1, do W=2, show wait.W=2; wait(W*=2 Mode)
        wait; down right | home; do Mode=1, show wait.Mode=1; wait(W=1 Mode*=1)
        plain; home down home down home down home; show plain.G, show plain.F, show plain.F, show plain.S, show plain.S, show plain.Mode, show plain.Mode; plain(G F S Mode*)
    )"));
    platform().untranslated = {"Loading"};
    platform().host = [](tagITEM_NODE_S* item) { item->s32CurIdx = 2; };
    openAll("push");
    EXPECT_EQ(pressed("home").substr(0, 20), "show push.Push='...'");
    EXPECT_STREQ(itemAt(gstPageMgr.astPage[0].stItemList, 0)->acValue[2], "t.Go") << "where the option is by then";
    failCall("language");
    EXPECT_EQ(pressed("home"), "-1");
}

TEST_F(HomeTest, AnswersForOneItem)
{
    for (const std::string key : {"FactoryRestore", "Restart", "LensCorrection", "RestoreImg"}) {
        for (const std::string page : {"p", "network"}) {
            const bool item = key == "RestoreImg";
            const std::string button = " " + page + "." + key + "=";
            const std::string yes =
                item ? "do " + key + "='t.Loading'" : "show" + button + "'t.Finish', do " + key + "='t.Finish'";
            const std::string after = ", show" + button + "'t.Confirm'; " + page + "(" + key + "*='t.Confirm' G";
            if (item && page == "network") {
                continue; // the page's own answer
            }
            check(ANSWERS + page + " = " + key + ":confirm G\n" + page + "; home G=High | home; " + yes + ", sleep 1" +
                  after + (item ? "=2)\n" : ")\n") + page + "; home G=High down | home; " + after.substr(2) + ")\n" +
                  page + "; home up | home; ;" + button + "'t.Loading' / confirm(Yes No Other*)");
            openAll(page);
            (void)pressed("home");
            failCall("language", 2); // the first is the key's own
            EXPECT_EQ(pressed("home"), "");
            EXPECT_EQ(gstPageMgr.s32PageCnt, 2);
        }
    }
}

TEST_F(HomeTest, AnswersForAPage)
{
    (void)press("IpMode=StaticIp Dns=8.8.8.8");
    platform().texts["Dns"].acList[0] = '\0';
    platform().host = [](tagITEM_NODE_S* item) {
        record("do " + shown(*item));
        EXPECT_EQ(gstPageMgr.s32PageCnt, 1) << "the confirm page has gone before";
    };
    const std::string edit =
        "; right down down home up home down down home right up home up up up up up right up home ";
    const std::string yes = "do Z=0/9, do IpMode=1, do Ip=292.168.1.5, do DnsMode, do Dns=18.8.8.8, do G, do Confirm, "
                            "show network.IpMode=1";
    check(ANSWERS +
          std::string("network ConfirmBtn='Yes' = Z# IpMode[ (DhcpIp ) (StaticIp Ip@ DnsMode[ (AutoMode Dns@ ) (Manual "
                      ") ] G ) ] Confirm+confirm X\n"
                      "network") +
          edit + "| home; " + yes +
          "; network(Z=0/9 IpMode*=1 Ip=292.168.1.5 DnsMode Dns=18.8.8.8 G Confirm* X=1/0)\n"
          "network" +
          edit +
          "down | home; show network.Confirm; network(Z=0/9 IpMode=1 Ip=192.168.1.5|292.168.1.5 DnsMode "
          "Dns=8.8.8.8|18.8.8.8 G Confirm* X=1/0)\n");
    // the item behind an automatic mode loses the cursor, when there is one
    check(R"(
        network = IpMode[ (DhcpIp ) (StaticIp DnsMode Go+confirm ) ]
        network; up home | home; do IpMode=1, do DnsMode, do Go, show network.IpMode=1; network(IpMode*=1 DnsMode Go)
        network = Go+confirm IpMode[ (DhcpIp ) (StaticIp DnsMode ) ]
        network; home | home; do Go, do IpMode=1, do DnsMode, show network.Go; network(Go* IpMode*=1 DnsMode)
        network; home up | home; ; network.Go / confirm(Yes No Other*)
    )");
    const std::vector<std::string> cases[] = {
        // page, "Yes", the key then, bytes behind it, a second "Yes"
        {"format", "do G=1, do Mode, do Deep, do Confirm", "Confirm", "", "do G=1, do Mode, do Deep, do Confirm"},
        {"rotate", "do G=1, do Mode, do Restart", "Restart", "", "do G=1, do Mode, do Restart, do X=1"},
        {"pip", "set G=Low 1, set Mode=A 1, set Confirm= 1, do Pip", "Pip", "irm",
         "set G=Low 1, set Mode=A 1, set Pip= 1, set X=Y 1"},
        {"video", "set G=Low 1, set Mode=A 1, set Deep=A 1, set Confirm= 1, do HdmiCfg", "HdmiCfg", "",
         "set G=Low 1, set Mode=A 1, set Deep=A 1, set HdmiCfg= 1, set X=Y 1"}};
    for (const std::vector<std::string>& c : cases) {
        const std::string answer = c[0] == "rotate" ? "restart" : "confirm";
        const std::string rest = " ConfirmBtn='Yes' = G Mode[ (A Deep[ (A Z# ) ] ) ] Confirm+" + answer + " X\n";
        check(c[0] + rest + c[0] + "; right up right up home down | home; show " + c[0] + ".Confirm; " + c[0] +
              "(G=1/0 Mode Deep Z=9 Confirm* X=1/0)\n" + c[0] + "; right up right up home up | home; ; " + c[0] +
              ".Confirm / " + answer + "(Yes No Other*)\n" + c[0] + "; right up right up home | home; " + c[1] +
              ", show " + c[0] + "." + c[2] + "; " + c[0] + "(G=1 Mode Deep Z=9 " + c[2] + "* X=1/0)\n");
        openAll(c[0]);
        (void)pressed("right up right up home home");
        EXPECT_STREQ(itemAt(gstPageMgr.astPage[0].stItemList, 2)->acItemIndex + c[2].size() + 1, c[3].c_str());
        EXPECT_EQ(pressed("home | home"), c[4] + ", show " + c[0] + "." + c[2]);
    }
}
