// The page stack: keys by depth, what a button says on the way back, pushes that fail.
#include "menu/nav/stack.h"
#include "tests/nav/nav_test.h"

using namespace fake;
using StackTest = NavTest;

static const char PAGES[] = R"(
    main = More>sub G
    sub = More>third Ip@
    third = Ip@ G
    advanced = G
    confirm = Yes. No. Other.
)";

TEST_F(StackTest, MenuKeysByDepth)
{
    check(std::string(PAGES) + R"(
        ; menu; read main, show main.More; main(More* G)
        ; open; read main, show main.More; main(More* G)
        ; advanced; read advanced, show advanced.G; advanced(G*)
        ; close; hide;
        ; return up down left right up_left up_right down_left down_right left_update right_update set home; ;
        main; open; ; main(More* G)
        main; menu; hide;
        main; return; hide;
        main sub third; close; hide;
        main; down right | up home; show main.More, read sub, show sub.More; main.More / sub(More* Ip=192.168.1.5)
        main; down right up home | return; show main.More; main(More* G=1)
        third; home | menu; hide;
        third; home up | advanced; read advanced, show advanced.G; advanced(G*)
        main third; home up right | menu; show third.Ip=192.168.1.5; main.More / third(Ip*=192.168.1.5 G)
        main third; home up menu | menu; show main.More; main(More* G)
        main third; home up home | menu; show main.More; main(More* G)
        main third; home up | return; show main.More; main(More* G)
    )");
    seen.push_back("language");
    check(R"(
        main sub; menu; language, show main.More; main(More* G)
        main sub; return; language, show main.More; main(More* G)
        main sub third; close; hide;
        main; advanced; read advanced, language, show advanced.G; advanced(G*)
        main sub third; advanced; language, read advanced, language, show advanced.G; advanced(G*)
    )");
}

TEST_F(StackTest, ButtonsGetTheirTextBack)
{
    check(PAGES);
    for (const std::string key :
         {"FactoryRestore", "Restart", "RestoreImg", "RestoreExp", "RestoreWB", "LensCorrection"}) {
        const std::string text = key == "FactoryRestore" ? "Confirm" : key[0] == 'R' ? "t.Confirm" : "t.Loading";
        const std::string after = "'" + text + "'; main(" + key + "*='" + text + "')\n";
        check("main = " + key + ":confirm\n main; home | menu; show main." + key + "=" + after +
              "main; home | return; show main." + key + "=" + after);
        EXPECT_EQ(itemAt(gstPageMgr.astPage[0].stItemList, 0)->acValue[0][8], key[0] == 'R' ? 'm' : 'g');
        (void)pressed("home");
        failCall("language");
        EXPECT_EQ(pressed("menu"), "show main." + key + "='" + (key[0] == 'R' ? "t.Loading" : text) + "'");
    }
}

TEST_F(StackTest, PushesThatFail)
{
    check(std::string(PAGES) + R"(
        opens = Sub>broken Go:none Btn+none
        full = More>sub Go:confirm Btn+confirm
        paged Layout='vertical_align_keth' CurPagesNum='5' NextPage='sub' = More>sub
        main main main full; home; read sub, show sub.More; main.More / main.More / main.More / full.More / sub(More* Ip=192.168.1.5)
        main main main main full; | home; -1; main.More / main.More / main.More / main.More / full(More* Go='t.Go' Btn)
        main main main main full; down | home; -1; main.More / main.More / main.More / main.More / full(More Go*='t.Go' Btn)
        main main main main full; up | home; -1; main.More / main.More / main.More / main.More / full(More Go='t.Go' Btn*)
        main main main main paged; down right; ; main.More / main.More / main.More / main.More / paged(More*)
        opens; down | home; show opens.Go='t.Loading', read none, -1; opens.Go='t.Loading' / #0
        opens; up | home; show opens.Btn, read none, -1; opens.Btn / #0
        opens; up home | menu; show opens.Btn; opens(Sub Go='t.Go' Btn*)
    )");
    platform().pages["broken"] = "<P Layout='vertical_align'>" + itemText("G") + "<I/>" + itemText("G") + "</P>";
    check("opens; home; read broken, -1; opens.Sub / broken(G*)");
    platform().pages.erase("main");
    check("; menu; read main; #0\n ; menu | home; -1; #0\n ; menu up | menu; hide;");
}

TEST_F(StackTest, FunctionsOfTheStack)
{
    char sub[] = "sub";
    tagPAGE_NODE_S* pages = gstPageMgr.astPage;
    check(PAGES);
    EXPECT_EQ(printed([&] { EXPECT_EQ(osdMenuNextPage(sub) + osdMenuPrevPage(), -2); }), "");
    openAll("main sub third");
    EXPECT_EQ(osdMenuGetPrevPage(&pages[0]), nullptr);
    EXPECT_EQ(osdMenuGetPrevPage(&pages[2]), &pages[1]);
    EXPECT_EQ(osdMenuGetPrevPage(&pages[3]), nullptr);
    platform().pages.clear();
    EXPECT_EQ(printed([&] { EXPECT_EQ(osdMenuNextPage(sub), -1); }), "F L, pcPageName = sub\nF L, ParaseXml failed\n");
    EXPECT_EQ(osdMenuPrevPage(), 0);
    openAll("");
    gstPageMgr.s32PageCnt = -1;
    EXPECT_EQ(pressed("menu") + pressed("advanced") + pressed("up home return"), "-1-1");
    gstPageMgr.s32PageCnt = 0;
}
