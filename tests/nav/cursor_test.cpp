// The cursor on each layout, steps of values, and the message line of a value that waits.
#include "tests/nav/nav_test.h"

using namespace fake;
using CursorTest = NavTest;

TEST_F(CursorTest, VerticalList)
{
    check(R"(
        v = Z# G W! F- S?
        t Layout='vertical_tolvane_align' = Z# G
        one = W!
        more = More>sub
        s = Mode[ (A G ) (B Z# W! ) ]
        m = Mode{ (A G ) (B Z# W! ) ]
        v; right right right left left; do Z=0, show v.Z=0, do Z=3, show v.Z=3, do Z=6, show v.Z=6, do Z=3, show v.Z=3, do Z=0, show v.Z=0; v(Z*=0 G W=1 F S)
        v; Z=1 refresh | left; do Z=10, show v.Z=10; v(Z*=10 G W=1 F S)
        v; down | left right right_update set down up; do G=2, show v.G=2, do G, show v.G, show v.G=1, do G=1, show v.G=1, show v.W=1, show v.G=1; v(Z=9 G*=1 W=1 F S)
        v; down_right up_right; do G=1, show v.G=1, do Z=0, show v.Z=0; v(Z*=0 G=1 W=1 F S)
        v; down_left up_left; do G=2, show v.G=2, do Z=6, show v.Z=6; v(Z*=6 G=2 W=1 F S)
        v; down down right; show v.G, show v.W=1, show v.W=2/1; v(Z=9 G W*=2/1 F S) 't.Press'
        v; down down right | left; show v.W=1; v(Z=9 G W*=1 F S)
        v; down down right | down; show v.F; v(Z=9 G W=1 F* S)
        v; down down right | up; show v.G; v(Z=9 G* W=1 F S)
        v; up right up left; show v.S, show v.S, show v.F, show v.F=-1/0; v(Z=9 G W=1 F*=-1/0 S)
        v; up | down; show v.Z=9; v(Z*=9 G W=1 F S)
        t; down right; do G=1; t(Z=9 G*=1)
        one; right down right up; show one.W=2/1, show one.W=1, show one.W=2/1, show one.W=1; one(W*=1)
        more; left right; do More=-1, show more.More=-1, do More, show more.More; more(More*)
        s; up; show s.G; s(Mode G*)
        s; Z=4 | right_update up; show s.Mode=1, show s.W=1; s(Mode=1 Z=4 W*=1)
        m; right; show m.Mode=1/0; m(Mode*=1/0 G) 't.Press'
        m; right | down; show m.G; m(Mode G*)
        m; right | home; do Mode=1, show m.Mode=1; m(Mode*=1 Z=9 W=1)
    )");
    platform().pages["empty"] = "<P Layout='vertical_align'/>";
    check("empty; up right set; show empty., show empty.; empty()\n empty; home; -1; empty()");
    EXPECT_EQ(printed([] { press("up"); }), "F don't find selected item\nNo active item found, weird\n"
                                            "No active item found, weird\n");
}

TEST_F(CursorTest, PopupAndIconGrid)
{
    for (const std::string layout : {"horizontal_align", "horizontal_align_keth"}) {
        check("h Layout='" + layout + R"(' = G W! Ip@
            h; right; ; h(G W*=1 Ip=192.168.1.5)
            h; left; ; h(G W=1 Ip*=192.168.1.5)
            h; right right right; ; h(G* W=1 Ip=192.168.1.5)
            h; right up down set; ; h(G W*=1 Ip=192.168.1.5)
            h; left home up right; ; h(G* W=1 Ip=192.168.1.5|192.168.001.005@0)
        )");
    }
    check(R"(
        i Layout='icon' CountPerLine='4' = A B C D E F G H I J
        row Layout='icon' CountPerLine='4' = A B C D
        few Layout='icon' CountPerLine='4' = A B C
        one Layout='icon' CountPerLine='1' = A
        loose Layout='icon' CountPerLine='0' = A B C
        i; left set; ; i#9
        i; left right; ; i#0
        i; left down; ; i#1
        i; left down up; ; i#9
        i; down_right; ; i#5
        i; down_right down; ; i#9
        i; down right right down; ; i#2
        i; right right up; ; i#6
        i; right right right up left; ; i#6
        i; down up_left; ; i#9
        i; down left; ; i#3
        i; up up; ; i#4
        row; right down up up; ; row#1
        few; right right up down; ; few#2
        few; down left; ; few#2
        one; down up left right; ; one#0
        loose; right up down; ; loose#1
        loose; left right right; ; loose#1
    )");
}

TEST_F(CursorTest, PagedList)
{
    check(R"(
        list Layout='vertical_align_keth' = G S? Z#
        led Layout='vertical_align_keth' = S? G Z#
        one Layout='vertical_align_keth' = S? W! S?
        lines Layout='vertical_align_keth' = S? S?
        plain Layout='vertical_align_keth' NextPage='two' PrevPage='one' = G
        first Layout='vertical_align_keth' CurPagesNum='1' NextPage='two' = G S? W! S?
        short Layout='vertical_align_keth' CurPagesNum='1' NextPage='two' = G
        lost Layout='vertical_align_keth' CurPagesNum='1' NextPage='none' = G
        two Layout='vertical_align_keth' CurPagesNum='2' PrevPage='first' = S? Z# G
        deep Layout='vertical_align_keth' = More>two
        list; down; ; list(G S Z*=9)
        list; down up; ; list(G* S Z=9)
        list; down down right; do G=1; list(G*=1 S Z=9)
        list; up; ; list(G S Z*=9)
        led; up; ; led(S G Z*=9)
        led; down up; ; led(S G Z*=9)
        led; down down down; ; led(S G* Z=9)
        one; down right down; ; one(S W*=1 S)
        one; down right up; ; one(S W*=1 S)
        lines; down up up; ; lines(S* S)
        plain; down up; ; plain(G*)
        first; up; ; first(G S W*=1 S)
        first; down right down; read two; first.W=2/1 / two(S* Z=9 G)
        first; down right down | up; ; first(G S W*=2/1 S) 't.Press'
        first; down right | up; ; first(G* S W=1 S)
        first two; down down down; ; first.G / two(S Z*=9 G)
        first two; down down up up; ; first(G* S W=1 S)
        first; down | down_right; read two; first.W=2/1 / two(S* Z=9 G) 't.Press'
        lost; down; read none; lost.G / #0
        short; down_right; read two, do G=1; short.G=1 / two(S* Z=9 G)
        short two; down up_left; ; short(G*)
        short two; up_right; ; short(G*)
        deep; right; read two; deep.More / two(S* Z=9 G)
        deep; home; read two; deep.More / two(S* Z=9 G)
        deep; left; do More=-1; deep(More*=-1)
        deep; left | right; read two; deep.More=0/-1 / two(S* Z=9 G)
        deep; left right up | down; do More; deep(More*)
    )");
}
