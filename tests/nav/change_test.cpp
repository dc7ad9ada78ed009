// Which changes are committed and reach the host, the colour text, the host's questions, and another language.
#include "menu/core/flat_list.h"
#include "menu/nav/change.h"
#include "tests/nav/nav_test.h"

using namespace fake;
using ChangeTest = NavTest;

TEST_F(ChangeTest, HeldModesAndConfirmedPages)
{
    check(R"(
        v = Z# W! F- S? Mode{ (A ) (B ) ] Ip@ More>sub
        network ConfirmBtn='Yes' = IpMode[ (DhcpIp ) (StaticIp ) ] DnsMode{ (AutoMode ) (Manual ) ] G
        other ConfirmBtn='Yes' = IpMode[ (DhcpIp ) (StaticIp Z# ) ] DnsMode{ (AutoMode ) (Manual ) ] W!
        alone ConfirmBtn='Yes' = DnsMode{ (AutoMode ) (Manual ) ]
        v; left_update set set; show v.Z=6, do Z=6, show v.Z=6, do Z=6, show v.Z=6; v(Z*=6 W=1 F S Mode Ip=192.168.1.5 More)
        v; down right | set; show v.W=2/1; v(Z=9 W*=2/1 F S Mode Ip=192.168.1.5 More) 't.Press'
        network; right | down right; show network.DnsMode, do DnsMode=1, show network.DnsMode=1; network(IpMode=1/0 DnsMode*=1 G)
        network; down | right_update; show network.DnsMode=1; network(IpMode DnsMode*=1 G)
        network; IpMode=StaticIp refresh left down | right home set; show network.DnsMode=1/0, show network.DnsMode=1/0; network(IpMode=0/1 DnsMode*=1/0 G) 't.Press'
        network; set down set; do IpMode, show network.IpMode, show network.DnsMode, do DnsMode, show network.DnsMode; network(IpMode DnsMode* G)
        network; up | right set; show network.G=1/0, do G=1/0, show network.G=1/0; network(IpMode DnsMode G*=1/0)
        other; up right | set home set; do W=2, show other.W=2; other(IpMode DnsMode W*=2)
        other; Z=4 | right; show other.IpMode=1/0; other(IpMode*=1/0 Z=4 DnsMode W=1)
        other; right down right Z=5 | up; show other.IpMode=1/0; other(IpMode*=1/0 Z=5 DnsMode W=1)
        other; IpMode=StaticIp refresh down down | right; do DnsMode=1, show other.DnsMode=1; other(IpMode=1 Z=9 DnsMode*=1 W=1)
        alone; right; do DnsMode=1, show alone.DnsMode=1; alone(DnsMode*=1)
    )");
    seen = {"do "};
    openAll("v");
    EXPECT_EQ(pressed("set down set down set down set down set down set down set"),
              "do Z=9, do F, do S, do Ip=192.168.1.5, do More");
}

// The neighbour is the one of the list that was flattened last, not of what the records say by now.
TEST_F(ChangeTest, NeighbourOfTheLastList)
{
    check("p = IpMode[ (DhcpIp ) (StaticIp Z# ) ] DnsMode[ (AutoMode ) (Manual ) ]");
    openAll("p");
    tagPAGE_NODE_S& page = gstPageMgr.astPage[0];
    tagITEM_NODE_S* mode = itemAt(page.stItemList, 0);
    tagITEM_NODE_S* dns = itemAt(page.stItemList, 1);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0) << "never in a list";
    (void)osdMenuGetSelectedItem(&page);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0);
    mode->s32CurIdx = mode->s32SavedIdx = 1; // brings an item between them, once the list is built anew
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 1);
    platform().language = "German";
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0) << "the label counts, in the language of now";
    platform().language = "English";
    (void)osdMenuGetSelectedItem(&page);
    EXPECT_EQ(osdXmlIsStaticOfNetMode(dns), 0);
}

TEST_F(ChangeTest, ColourTextAndQuestions)
{
    setNumber("LedCustomColor", 0, 0xFFFFFF, 153, 0x123456); // red 18, green 52
    platform().answers[OSD_MENU_GET_LED_CUSTOM_COLOR] = "1a3456";
    platform().host = [](tagITEM_NODE_S*) { platform().answers[OSD_MENU_GET_LED_CUSTOM_COLOR] = "FEDCBA"; };
    for (const char* key : {"ViewFollowExposure", "ViewFollowWB"}) {
        setText(key, "Off:On", "Off");
    }
    platform().translated = ""; // the question is for the label "On"
    check(R"(
        tally Layout='vertical_align_keth' = LedCustomRed# LedCustomGreen# G LedCustomColor?
        other Layout='vertical_align_keth' = LedCustomRed# LedCustomColor?
        bare Layout='vertical_align_keth' = LedCustomRed#
        tally; right_update; ; tally(LedCustomRed*=171 LedCustomGreen=52 G LedCustomColor='AB3456')
        tally; down right_update; ; tally(LedCustomRed=18 LedCustomGreen*=205 G LedCustomColor='1ACD56')
        tally; right; ; tally(LedCustomRed*=171 LedCustomGreen=52 G LedCustomColor='FEDCBA')
        tally; down right; ; tally(LedCustomRed=18 LedCustomGreen*=205 G LedCustomColor='FEDCBA')
        tally; down down right; ; tally(LedCustomRed=18 LedCustomGreen=52 G*=1 LedCustomColor='1a3456')
        other; right right_update; ; other(LedCustomRed*=0 LedCustomColor='1a3456')
        bare; right_update; ; bare(LedCustomRed*=171)
    )");
    seen = {"do "};
    for (const std::string name : {"exposure", "wblance", "network"}) {
        check(name + " = ViewFollowExposure ViewFollowWB\n" + "net" + name + " = ViewFollowExposure ViewFollowWB");
        openAll(name);
        EXPECT_EQ(pressed("is_exposure") + pressed("is_wb") + pressed("is_network"), name == "network" ? "1" : "");
        EXPECT_EQ(pressed("right is_exposure"), name == "exposure" ? "1" : "");
        EXPECT_EQ(pressed("down right is_wb"), name == "wblance" ? "1" : "");
        openAll("net" + name);
        EXPECT_EQ(pressed("down_right is_exposure") + pressed("is_wb") + pressed("is_network"), "");
    }
    check(R"(
        exposure ConfirmBtn='Yes' = ViewFollowExposure
        wblance = Mode[ (A ViewFollowWB ) ]
        exposure; right is_exposure; ; exposure(ViewFollowExposure*=1/0)
        wblance; down right is_wb; ; wblance(Mode ViewFollowWB*=1)
        ; is_exposure is_wb is_network; ;
    )");
}

TEST_F(ChangeTest, AnotherLanguage)
{
    setText("Language", "English:German", "English");
    platform().host = [](tagITEM_NODE_S* item) {
        platform().language = item->s32SavedIdx == item->s32CurIdx ? item->acValueKey[item->s32CurIdx] : "early";
    };
    check(R"(
        main Title='Top' TitlePos='Left' = G~ Mode[ (A G ) ] W! Go:c Push, More> S? Z#
        sub = Language
    )");
    const auto texts = [] { // title, labels, option labels, messages
        std::string text = gstPageMgr.astPage[0].acTitle;
        for (const tagITEM_NODE_S* item : visibleItems(gstPageMgr.astPage[0])) {
            text += std::string(" ") + item->acItemName + "=" + (item->enValType == OPTTXT ? item->acValue[0] : "") +
                    item->acMsg;
        }
        return text + " / " + itemAt(gstPageMgr.astPage[1].stItemList, 0)->acValue[0];
    };
    const std::string german =
        "d.Top d.G=t.Auto d.Mode=t.A t.G=t.Auto d.W=t.Ad.Press d.Go=d.Go d.Push=t.Go d.More= d.S= d.Z= / d.English";
    openAll("main sub");
    const std::string english = texts();
    failCall("language");
    EXPECT_EQ(pressed("right"), "show sub.Language=1");
    EXPECT_EQ(texts(), english);
    EXPECT_EQ(pressed("left_update"), "show sub.Language");
    EXPECT_EQ(texts(), german) << "also without the host";
    platform().language = "English";
    openAll("main sub");
    EXPECT_EQ(pressed("right"), "show sub.Language=1");
    EXPECT_EQ(texts(), german) << "behind the host's function";
}
