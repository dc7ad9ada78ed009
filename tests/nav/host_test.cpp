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
    const std::string modes = R"(<I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A"> <I ItemIndex="Gain"/>
        <I ItemIndex="Deep" Attr="SUBITEM"> <O ModeIndex="A"> <I ItemIndex="Ip" Attr="EDITABLE"/> </O> </I>
        <I ItemIndex="Wait"/> </O> <O ModeIndex="B"> <I ItemIndex="Zoom" ValType="NUMERICAL"/> </O> </I>)";
    setPages(R"(
        advanced: <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/> <I ItemIndex="More" Attr="SUBPAGE" SubPage="sub"/>
        words Title="T" TitlePos="Left": <I ItemIndex="Language"/> <I ItemIndex="Gain"/>
        push: <I ItemIndex="Push" Attr="CONFIRM" Ctx="NAME_VAL"/> <I ItemIndex="Back" Attr="CONFIRM" Ctx="NAME_VAL"/>
        tally Layout="vertical_align_keth": <I ItemIndex="LedCustomRed" ValType="NUMERICAL"/>
            <I ItemIndex="LedCustomColor" Attr="STATUS"/>
    )");
    setPage("sub", modes + R"(<I ItemIndex="More" Attr="SUBPAGE" SubPage="third"/>)");
    setPage("waiting", replaced(modes, "^(.*)SUBITEM", "$1MSG_WITH_SUBITEM"));
    for (const std::string key : {"Restart", "RestoreImg"}) {
        setPage(key, "<I ItemIndex='" + key + "' Attr='CONFIRM_POP'/>" + modes);
    }
    for (const std::string page : {"network", "format", "rotate", "pip", "video"}) {
        setPage(page, modes + "<I ItemIndex='Confirm' Attr='CONFIRM_POP_BTN'/>" + modes, "ConfirmBtn='Yes'");
    }
    const std::vector<std::vector<std::string>> ways = tableIn(R"(
        sub                 | right
        sub                 | left_update set
        main / sub          | down_left
        main                | down_right down
        words               | right
        tally               | right
        tally               | right_update set
        push                | home
        push                | down home
        waiting             | right home
        main / Restart      | home home
        main / RestoreImg   | home home
        network / confirm   | home
        format / confirm    | home
        rotate / restart    | home
        pip / confirm       | home
        video / confirm     | home
    )");
    for (const std::vector<std::string>& way : ways) {
        for (const std::string action :
             {"render", "refresh", "refresh_page", "close", "close open", "return", "menu menu menu", "advanced",
              "right", "down home up_left", "close open home right down", "Mode=B refresh_page up",
              "advanced down home right advanced"}) {
            bool called = true;
            for (int n = 1; called; n++) {
                SCOPED_TRACE(joined(way, ": ") + ": " + action + " in call " + std::to_string(n));
                openAll(way[0]);
                (void)printed([&] { called = act(way[1], action, n); });
                EXPECT_TRUE(called || n > 1) << "the host is never called";
                const char* left = action == "close" ? "closed" : action == "close open" ? "main" : "";
                EXPECT_TRUE(!called || *left == '\0' || screen()[0] == left) << screen()[0];
                EXPECT_EQ(pressed("render down right home up menu close"), "hides the menu");
                EXPECT_EQ(liveItems(), 0);
                (void)press("Mode=A");
            }
        }
    }
}
