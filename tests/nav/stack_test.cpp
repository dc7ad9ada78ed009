// The page stack: keys by depth, what a button says on the way back, pushes that fail.
#include "tests/nav/nav_test.h"

using namespace fake;

using StackTest = NavTest;

TEST_F(StackTest, MenuKeysByDepth)
{
    check(R"(
        closed
        menu     | reads main     | main: > More; Gain Auto
        open     | reads main     | main: > More; Gain Auto
        advanced | reads advanced | advanced: > Gain Auto
        main
        open               | no redraw      | > More
        menu               | hides the menu | closed
        return             | hides the menu | closed
        down right up home | reads sub      | main at More / sub: > More; Ip 192.168.1.5
        then return        | > More; Gain Low
        third
        home menu        | hides the menu | closed
        main / third
        home up           | > Ip [2]92.168.001.005, was 192.168.1.5
        then right menu   | > Ip 192.168.1.5
        then menu         | main: > More; Gain Auto
        home up home menu | main: > More; Gain Auto
        home up return    | main: > More; Gain Auto
    )");
    openAll("closed");
    for (const char* key : {"return", "up", "down", "left", "right", "up_left", "up_right", "down_left", "down_right",
                            "left_update", "right_update", "set", "home"}) {
        EXPECT_EQ(pressed(key), "no redraw") << key << " on a closed menu";
    }
    check(R"(
        main / sub / third
        close    | hides the menu | closed
        advanced | reads advanced | advanced: > Gain Auto
    )");
}

TEST_F(StackTest, ButtonsGetTheirTextBack)
{
    platform().words = {
        {"Confirm", "confirm"}, {"Loading", "loading..."}, {"Go", "go"}}; // one button says the bare word
    for (const std::string key :
         {"FactoryRestore", "Restart", "RestoreImg", "RestoreExp", "RestoreWB", "LensCorrection"}) {
        const char* after = key[0] == 'F' ? "Confirm" : key[0] == 'R' ? "confirm" : "loading...";
        setPage("main", "<I ItemIndex='" + key + "' Attr='CONFIRM_POP'/>");
        for (const char* back : {"home menu", "home return"}) {
            openAll("main");
            EXPECT_EQ(valueOf(itemOf(key)), "go");
            EXPECT_EQ(pressed(back), "");
            EXPECT_EQ(valueOf(itemOf(key)), after) << key;
            EXPECT_EQ(itemOf(key).acValue[0][8], key[0] == 'R' ? '\0' : '.') << "bytes behind the text are others";
        }
        (void)pressed("home");
        failCall("language");
        EXPECT_EQ(pressed("menu"), "");
        EXPECT_EQ(valueOf(itemOf(key)), key[0] == 'R' ? "loading..." : after) << key;
        EXPECT_EQ(pressed("home close"), "hides the menu");
        EXPECT_STREQ(releasedText(), key[0] == 'F' ? "Confirm" : "loading...") << "also before the page goes";
    }
}

TEST_F(StackTest, PushesThatFail)
{
    setPages(R"(
        opens: <I ItemIndex="Sub" Attr="SUBPAGE" SubPage="broken"/>
            <I ItemIndex="Push" Attr="CONFIRM_POP" ConfirmPage="none"/>
            <I ItemIndex="Confirm" Attr="CONFIRM_POP_BTN" ConfirmPage="none"/>
        full: <I ItemIndex="More" Attr="SUBPAGE" SubPage="sub"/>
            <I ItemIndex="Push" Attr="CONFIRM_POP"/> <I ItemIndex="Confirm" Attr="CONFIRM_POP_BTN"/>
        paged Layout="vertical_align_keth" CurPagesNum="5" NextPage="sub":
            <I ItemIndex="More" Attr="SUBPAGE" SubPage="sub"/>
        broken: <I ItemIndex="Gain"/> <I/> <I ItemIndex="Gain"/>
    )");
    check(R"(
        main / main / main / full
        home | reads sub | main at More / main at More / main at More / full at More / sub: > More; Ip 192.168.1.5
        main / main / main / main / full
        home      | fails | > More
        down home | fails | > Push Go
        up home   | fails | > Confirm
        main / main / main / main / paged
        down  | > More
        right | > More
        opens
        home      | reads broken, fails                   | opens at Sub / broken: > Gain Auto
        down home | shows Push Loading, reads none, fails | opens at Push Loading / unread
        up home   | shows Confirm, reads none, fails      | opens at Confirm / unread
        then menu | > Confirm
    )");
    platform().pages.erase("main");
    check(R"(
        closed
        menu      | reads main     | unread
        then home | fails          | unread
        then up   | unread
        then menu | hides the menu |
    )");
}

TEST_F(StackTest, FunctionsOfTheStack)
{
    char missing[] = "missing";
    tagPAGE_NODE_S* pages = gstPageMgr.astPage;
    EXPECT_EQ(osdMenuNextPage(missing) + osdMenuPrevPage(), -2);
    openAll("main / sub / third");
    EXPECT_EQ(osdMenuGetPrevPage(&pages[0]), nullptr);
    EXPECT_EQ(osdMenuGetPrevPage(&pages[2]), &pages[1]);
    EXPECT_EQ(osdMenuGetPrevPage(&pages[3]), nullptr);
    EXPECT_EQ(printed([&] { EXPECT_EQ(osdMenuNextPage(missing), -1); }),
              "F L, pcPageName = missing\nF L, ParaseXml failed\n");
    EXPECT_EQ(osdMenuPrevPage(), 0);
    openAll("closed");
    gstPageMgr.s32PageCnt = -1;
    EXPECT_EQ(press("menu") + press("advanced") + press("up home return"), -2);
    gstPageMgr.s32PageCnt = 0;
}
