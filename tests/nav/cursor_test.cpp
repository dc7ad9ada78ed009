// The cursor on each layout, steps of values, and the message line of a value that waits.
#include "tests/nav/nav_test.h"

using namespace fake;
using CursorTest = NavTest;

TEST_F(CursorTest, VerticalList)
{
    setPages(R"(
        tolvane Layout="vertical_tolvane_align": <I ItemIndex="Ip" Attr="EDITABLE"/> <I ItemIndex="Gain"/>
        one: <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/>
        waits: <I ItemIndex="Mode" Attr="MSG_WITH_SUBITEM"> <O ModeIndex="A"> <I ItemIndex="Gain"/> </O>
            <O ModeIndex="B"> <I ItemIndex="Zoom" ValType="NUMERICAL"/> </O> </I>
    )");
    check(R"(
        list
        right               | sets Zoom to 0         | > Zoom 0 of 0..10
        Zoom=7 refresh right | sets Zoom to 10       | > Zoom 10 of 0..10
        Zoom=1 refresh left | sets Zoom to 10        | > Zoom 10 of 0..10
        down_left           | sets Gain to High      | > Gain High
        then up_left        | sets Zoom to 6         | > Zoom 6 of 0..10; Gain High
        then down_right     | sets Gain to Auto      | Zoom 6 of 0..10; > Gain Auto
        then up_right       | sets Zoom to 9         | > Zoom 9 of 0..10
        down down right     | > Wait C, was B --- Press
        then left           | > Wait B
        up                  | > More
        then left           | sets More to option -1 | > More option -1
        then right          | passes More            | > More
        tolvane
        home up    | > Ip [2]92.168.001.005, was 192.168.1.5
        down right | sets Gain to Low | > Gain Low
        one
        right down | > Wait B
        modes
        > Mode   A
            Gain Auto
        up                  | > Gain Auto
        Zoom=4 right_update | > Mode B; Zoom 4 of 0..10; Wait B
        then up             | Mode B; Zoom 4 of 0..10; > Wait B
        waits
        right      | > Mode B, was A --- Press
        then down  | > Gain Auto
        right home | sets Mode to B | > Mode B; Zoom 9 of 0..10
    )");
    setPage("empty", "");
    check(R"(
        empty
        right set | no redraw |
        home      | fails     |
    )");
    EXPECT_EQ(printed([] { press("up"); }), "F don't find selected item\nNo active item found, weird\n"
                                            "No active item found, weird\n");
    list_head none = {&none, &none};
    for (const auto move : {osdMenuUpdateVerticalItemCursor, osdMenuUpdateHorizontalItemCursor,
                            osdMenuUpdateVerticalItemCursorWithKETH}) {
        (void)printed([&] { EXPECT_EQ(move(&none, OSD_MENU_KEY_LEFT), -1); });
    }
}

TEST_F(CursorTest, Popups)
{
    for (const std::string layout : {"horizontal_align", "horizontal_align_keth"}) {
        setPages("popup Layout='" + layout + R"(': <I ItemIndex="Gain"/> <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/>
            <I ItemIndex="Ip" Attr="EDITABLE"/>)");
        check(R"(
            popup
            right              | > Wait B
            then up down       | > Wait B
            then set           | no redraw | > Wait B
            then right right   | > Gain Auto
            left               | > Ip 192.168.1.5
            then home up right | > Gain Auto; Ip [1]92.168.001.005, was 192.168.1.5
        )");
    }
}

TEST_F(CursorTest, IconGrid)
{
    setPage("grid", "<I ItemIndex='A'/><I ItemIndex='B'/><I ItemIndex='C'/>", "Layout='icon' CountPerLine='2'");
    check(R"(
        grid
        down_right | > A
        right      | > B
        then set   | no redraw | > B
    )");
    // cells in all and in a row, the position before, and behind up, down, left and right; also outside the page
    const int cases[][7] = {{10, 4, 0, 8, 4, 9, 1},    {10, 4, 3, 7, 7, 2, 4},  {10, 4, 5, 1, 9, 4, 6},
                            {10, 4, 6, 2, 2, 5, 7},    {10, 4, 9, 5, 1, 8, 0},  {4, 4, 1, 1, 1, 0, 2},
                            {1, 1, 0, 0, 0, 0, 0},     {3, 0, 1, 1, 1, 0, 2},   {0, 0, 0, 0, 0, -1, 1},
                            {10, 4, 12, 8, 0, 11, 13}, {10, 4, -1, 7, 3, 9, 0}, {10, 4, -6, 2, -2, 9, -5}};
    const tagOSD_MENU_KEY_E directions[] = {OSD_MENU_KEY_UP, OSD_MENU_KEY_DOWN, OSD_MENU_KEY_LEFT, OSD_MENU_KEY_RIGHT};
    for (const auto& c : cases) {
        for (int at = 0; at < 4; at++) {
            tagPAGE_NODE_S page = {};
            page.s32ItemCnt = c[0];
            page.s32CountPerLine = c[1];
            page.s32SelIdx = c[2];
            EXPECT_EQ(osdMenuUpdateItemCursor(&page, directions[at], 1), 0);
            EXPECT_EQ(page.s32SelIdx, c[3 + at]) << c[0] << " cells, from " << c[2] << ", key " << at;
        }
    }
}

TEST_F(CursorTest, PagedList)
{
    setPages(R"(
        list Layout="vertical_align_keth":
            <I ItemIndex="Gain"/> <I ItemIndex="SN" Attr="STATUS"/> <I ItemIndex="Zoom" ValType="NUMERICAL"/>
        one Layout="vertical_align_keth":
            <I ItemIndex="SN" Attr="STATUS"/> <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/> <I ItemIndex="M" Attr="STATUS"/>
        facts Layout="vertical_align_keth": <I ItemIndex="SN" Attr="STATUS"/> <I ItemIndex="Mac" Attr="STATUS"/>
        first Layout="vertical_align_keth" CurPagesNum="1" NextPage="two":
            <I ItemIndex="Gain"/> <I ItemIndex="Mac" Attr="STATUS"/> <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/>
            <I ItemIndex="SN" Attr="STATUS"/>
        short Layout="vertical_align_keth" CurPagesNum="1" NextPage="two": <I ItemIndex="Gain"/>
        lost Layout="vertical_align_keth" CurPagesNum="1" NextPage="none": <I ItemIndex="Gain"/>
        two Layout="vertical_align_keth" CurPagesNum="2" PrevPage="first": <I ItemIndex="SN" Attr="STATUS"/>
            <I ItemIndex="Zoom" ValType="NUMERICAL"/>
        deep Layout="vertical_align_keth": <I ItemIndex="More" Attr="SUBPAGE" SubPage="two"/>
        edits Layout="vertical_align_keth": <I ItemIndex="Ip" Attr="EDITABLE"/>
    )");
    check(R"(
        list
        up up           | > Gain Auto
        then up         | > Zoom 9 of 0..10
        then down right | sets Gain to Low | > Gain Low
        one
        down right    | > Wait C, was B --- Press
        then down     | > Wait B
        then right up | > Wait B
        facts
        down up up | > SN
        first
        up              | > Wait B
        then right down | reads two | first at Wait C, was B / two: > SN; Zoom 9 of 0..10
        then down down  | first at Wait C, was B / two: SN; > Zoom 9 of 0..10
        then up         | > Wait C, was B --- Press
        then up         | > Gain Auto
        down down_right | reads two | first at Wait C, was B / two: > SN; Zoom 9 of 0..10 --- Press
        short
        down_right | reads two, sets Gain to Low | short at Gain Low / two: > SN; Zoom 9 of 0..10
        short / two
        up_right | short: > Gain Auto
        lost
        down | reads none | lost at Gain Auto / unread
        deep
        right        | reads two              | deep at More / two: > SN; Zoom 9 of 0..10
        left         | sets More to option -1 | > More option -1
        then right   | reads two              | deep at More none, was option -1 / two: > SN; Zoom 9 of 0..10
        then up down | passes More            | > More
        edits
        home up | > Ip [2]92.168.001.005, was 192.168.1.5
    )");
    openAll("one"); // no direction
    tagPAGE_NODE_S& page = gstPageMgr.astPage[0];
    (void)press("down right");
    const std::vector<std::string> before = screen();
    EXPECT_EQ(osdMenuUpdateItemCursor(&page, static_cast<tagOSD_MENU_KEY_E>(5), 0), 0);
    EXPECT_EQ(screen(), before);
    itemOf("Wait").s32CurIdx = itemOf("Wait").s32SavedIdx;
    EXPECT_EQ(osdMenuUpdateItemCursor(&page, static_cast<tagOSD_MENU_KEY_E>(5), 0), 0);
    EXPECT_EQ(page.bKeyMsg, 1) << "the message neither";
}
