// Hosts that call the menu from inside the business function: whatever they do there, nothing that is gone is touched,
// nothing stays behind, and the menu goes on.
#include "tests/nav/nav_test.h"

using namespace fake;
using HostTest = NavTest;

// Opens pages and presses keys; the host acts in its n-th call. Gives whether there were so many calls.
static bool act(const std::string& keys, const std::string& action, int n)
{
    int count = 0;
    platform().host = [&](tagITEM_NODE_S* item) {
        std::string key = item->acItemIndex;
        if (++count == n) {
            (void)press(action);
            (void)OSD_MENU_RefreshItem(key.data());
        }
    };
    (void)press(keys);
    platform().host = nullptr;
    return count >= n;
}

TEST_F(HostTest, EveryCallOfTheHostMayComeBack)
{
    setText("Language", "English:German", "English");
    setNumber("LedCustomColor", 0, 0xFFFFFF, 5, 0x123456);
    check(R"(
        main = More>sub G
        sub = Mode[ (A G Ip@ ) (B Z# ) ] More>third
        advanced = W! More>sub
        waiting = Mode{ (A G Ip@ ) (B Z# ) ]
        words Title='T' TitlePos='Left' = Language G
        push = Push, Back,
        tally Layout='vertical_align_keth' = LedCustomRed# LedCustomColor?
        confirm = Yes. No.
        restart = Yes. No.
        Restart = Restart:confirm Mode[ (A G Ip@ ) (B Z# ) ]
        RestoreImg = RestoreImg:confirm Mode[ (A G Ip@ ) (B Z# ) ]
    )");
    for (const std::string page : {"network", "format", "rotate", "pip", "video"}) {
        const std::string items = " G Mode[ (A Deep[ (A G Ip@ ) (B G ) ] Ip@ ) (B Z# ) ] ";
        check(page + " ConfirmBtn='Yes' = " + items + "Confirm+" + (page == "rotate" ? "restart" : "confirm") + items);
    }
    const std::pair<const char*, const char*> ways[] = {// pages, keys
                                                        {"sub", "right"},
                                                        {"sub", "left_update set"},
                                                        {"main sub", "down_left"},
                                                        {"main", "down_right down"},
                                                        {"words", "right"},
                                                        {"tally", "right"},
                                                        {"tally", "right_update set"},
                                                        {"push", "home"},
                                                        {"push", "down home"},
                                                        {"waiting", "right home"},
                                                        {"main Restart", "home home"},
                                                        {"RestoreImg", "home home"},
                                                        {"main RestoreImg", "home home"},
                                                        {"network confirm", "home"},
                                                        {"format confirm", "home"},
                                                        {"rotate restart", "home"},
                                                        {"pip confirm", "home"},
                                                        {"video confirm", "home"}};
    for (const auto& [pages, keys] : ways) {
        for (const std::string action :
             {"render", "refresh", "refresh_page", "close", "close open", "return", "menu menu menu", "advanced",
              "right", "down home up_left", "close open home right down", "Mode=B refresh_page up",
              "advanced down home right advanced"}) {
            bool called = true;
            for (int n = 1; called; n++) {
                SCOPED_TRACE(std::string(pages) + ": " + keys + ": " + action + " in call " + std::to_string(n));
                openAll(pages);
                (void)printed([&, keys = keys] { called = act(keys, action, n); });
                EXPECT_TRUE(called || n > 1) << "the host is never called";
                EXPECT_TRUE(!called || action != "close" || state().empty()) << state();
                EXPECT_TRUE(!called || action != "close open" || state().substr(0, 9) == "main(More") << state();
                EXPECT_EQ(pressed("render down right home up menu | close"), "hide");
                EXPECT_EQ(liveItems(), 0);
                (void)press("Mode=A");
            }
        }
    }
}
