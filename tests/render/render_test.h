// A page file on a canvas of 1000 by 1000, and what one redraw puts there, a row a line, in the order of drawing:
//     Image at 10,10 bold 32 grey
//     Gain at 20,60 plain 28 white | Auto at 505,60             in the same font
//     nav_arrow at 20,110 size 30x30 | value at 505,110 size 445x30
//     white line at 50,900 size 900x10
// The fake fonts are 20 pixels a byte wide and 30 high.
#pragma once

#include "osd_page.h"
#include "tests/fake/menu_test.h"

namespace fake {

class RenderTest : public MenuTest {
protected:
    void restart(const Config& config = {}) // style 0
    {
        stop();
        start(config);
        platform().translated = "";
        page = nullptr;
    }

    // Opens a page with these items, its message line shown.
    void show(const std::string& items, const std::string& attributes = "")
    {
        page = openPage(items, attributes);
        page->bKeyMsg = 1;
        setField(page->acKeyMsg, "Press");
    }

    // One redraw, without the background.
    static std::string redraw()
    {
        calls().lines.clear();
        EXPECT_EQ(OSD_MENU_RenderCanvas(), 0);
        std::string rows;
        std::string font;
        int top = -100; // of the row
        for (const std::string& line : linesOf({"blit ", "fill "})) {
            if (line.find(" on ") != std::string::npos || line.find("a0a0a") != std::string::npos) {
                continue;
            }
            std::string what = replaced(line, R"(fill (\S+) (\S+) (\w+))", "$3 line at $1 size $2");
            what = replaced(replaced(what, R"(blit (\d))", "blit value $1"), R"(blit (\w+) (\d+x\d+) at (\S+))",
                            "$1 at $3 size $2");
            const std::string in = replaced(what, R"(^blit (\w+ \d+ \w+) '.+$|^.+$)", "$1"); // its font
            what = replaced(what, R"(blit .*'(.*)' at (\S+))", "$1 at $2");
            const int y = std::stoi(replaced(what, R"(.* at -?\d+,(-?\d+).*)", "$1"));
            const bool same = std::abs(y - top) < 15;
            rows += (same ? " | " : "\n") + what + (in.empty() || (same && in == font) ? "" : " " + in);
            font = same && in.empty() ? font : in;
            top = same ? top : y;
        }
        return rows + "\n";
    }

    // The rows of a redraw are these, behind "..." the ones at the end and before it the ones at the beginning.
    static void expect(const std::string& rows)
    {
        const std::string all = "\n" + joined(linesIn(rows), "\n") + "\n";
        const size_t gap = all.find("...\n");
        testing::Matcher<std::string> matcher = all;
        if (gap != std::string::npos) {
            matcher = testing::AllOf(testing::StartsWith(all.substr(0, gap)), testing::EndsWith(all.substr(gap + 3)));
        }
        EXPECT_THAT(redraw(), matcher);
    }

    tagPAGE_NODE_S* page = nullptr;
};

} // namespace fake
