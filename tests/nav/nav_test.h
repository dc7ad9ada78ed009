// Keys on pages, as blocks of text.
//     main / image                                          pages that are opened, as screen() has them
//     > Gain  Low                                           what is seen then, may be left out
//       Zoom  40 of 0..100
//     right      | sets Gain to High | > Gain High
//     then down  | > Zoom 40 of 0..100
// A row tells keys, the calls that the last one makes, and the rows that differ from the first screen, with that of the
// cursor; all rows where there are others. A key that succeeds shows the menu in the end, which isn't written; where it
// doesn't, its calls end with "no redraw". It begins with the pages just opened and the settings as they were, behind
// "then" where the row above ended.
#pragma once

#include "osd_page.h"
#include "tests/fake/keys.h"
#include "tests/fake/menu_test.h"

namespace fake {

class NavTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        setText("Gain", "Auto:Low:High", "Auto");
        setText("Wait", "A:B:C", "B");
        setText("Last", "X:Y", "X");
        setText("DnsMode", "AutoMode:Manual", "AutoMode");
        setText("Ip", "", "192.168.1.5");
        setNumber("Zoom", 0, 10, 3, 9);
        (void)press("Mode=A Deep=A IpMode=DhcpIp");
        platform().translated = "";
        setPages(R"(
            main: <I ItemIndex="More" Attr="SUBPAGE" SubPage="sub"/> <I ItemIndex="Gain"/>
            sub: <I ItemIndex="More" Attr="SUBPAGE" SubPage="third"/> <I ItemIndex="Ip" Attr="EDITABLE"/>
            third: <I ItemIndex="Ip" Attr="EDITABLE"/> <I ItemIndex="Gain"/>
            advanced: <I ItemIndex="Gain"/>
            list: <I ItemIndex="Zoom" ValType="NUMERICAL"/> <I ItemIndex="Gain"/>
                <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/> <I ItemIndex="Note" Attr="CONST_TXT"/>
                <I ItemIndex="SN" Attr="STATUS"/> <I ItemIndex="Ip" Attr="EDITABLE"/>
                <I ItemIndex="Mode" Attr="MSG_WITH_SUBITEM"> <O ModeIndex="A"/> <O ModeIndex="B"/> </I>
                <I ItemIndex="More" Attr="SUBPAGE" SubPage="list"/>
            modes: <I ItemIndex="Mode" Attr="SUBITEM"> <O ModeIndex="A"> <I ItemIndex="Gain"/> </O> <O ModeIndex="B">
                <I ItemIndex="Zoom" ValType="NUMERICAL"/> <I ItemIndex="Wait" Attr="KEY_WITH_MSG"/> </O> </I>
            confirm: <I ItemIndex="Yes" Attr="CONFIRM"/> <I ItemIndex="No" Attr="CONFIRM"/>
                <I ItemIndex="Other" Attr="CONFIRM"/>
            restart: <I ItemIndex="Yes" Attr="CONFIRM"/> <I ItemIndex="No" Attr="CONFIRM"/>
                <I ItemIndex="Other" Attr="CONFIRM"/>
        )");
        platform().host = [](tagITEM_NODE_S* item) { record("host " + handed(*item)); };
        platform().pushed = [](OSD_BOOL show) { show == 1 ? record("picture " + drawn()) : void(); };
        start({0, 2, 0, {0.0f, 0.0f, 0.1f, 0.04f}, false});
    }

    // What the host gets.
    static std::string handed(const tagITEM_NODE_S& item)
    {
        const std::string value = replaced(valueOf(item), R"( of [-\d]+\.\.[-\d]+)", "");
        const bool button = item.enAttr == CONFIRM || item.enAttr == CONFIRM_POP || item.enAttr == CONFIRM_POP_BTN;
        return button          ? squeezed(std::string("presses ") + item.acItemIndex + " " + value)
               : value.empty() ? std::string("passes ") + item.acItemIndex
                               : std::string("sets ") + item.acItemIndex + " to " + value;
    }

    // What the last redraw put onto the canvas, and its bright texts.
    static std::string drawn()
    {
        const std::vector<std::string> lines = linesOf({"blit ", "push "});
        std::string picture;
        for (auto line = lines.rbegin() + 1; line != lines.rend() && line->rfind("push", 0) != 0; ++line) {
            picture.insert(0, *line + "; ");
        }
        return picture;
    }
    static std::string bright(const std::string& picture)
    {
        std::string texts;
        for (size_t at = 0; (at = picture.find(" white '", at)) != std::string::npos; at++) {
            texts += " " + picture.substr(at + 8, picture.find("' at ", at) - at - 8);
        }
        return texts;
    }

    // What the library calls, where "shows the menu" is the picture of the menu as it is now.
    std::vector<std::string> sentences()
    {
        static const std::pair<const char*, const char*> forms[] = {{"^host (.*)", "$1"},
                                                                    {"^set (.*)=(.*) 1$", "stores '$2' as $1"},
                                                                    {"^sleep (.*)", "waits $1 s"},
                                                                    {"^document .*/(.*)_page.xml 1$", "reads $1"},
                                                                    {"^push 0$", "hides the menu"}};
        const std::vector<std::string> lines = calls().lines;
        calls().lines.clear();
        (void)printed([] { (void)OSD_MENU_RenderCanvas(); });
        const std::string now = calls().lines.empty() ? "" : calls().lines.back();
        std::vector<std::string> found;
        for (const std::string& line : lines) {
            if (line.rfind("picture ", 0) == 0) {
                found.push_back(line == now ? "shows the menu" : "shows" + bright(line));
            }
            for (const auto& [pattern, with] : forms) {
                const std::string sentence = replaced(line, pattern, with);
                if (sentence != line) {
                    found.push_back(sentence);
                }
            }
        }
        return found;
    }

    void openAll(const std::string& path)
    {
        while (gstPageMgr.s32PageCnt > 0) {
            (void)osdMenuReleaseSinglePage();
        }
        std::istringstream in(path == "closed" ? "" : replaced(path, " / ", " "));
        (void)printed(
            [&] { std::for_each(std::istream_iterator<std::string>(in), {}, [](auto& name) { open(name); }); });
    }

    // Presses keys, and tells the calls of the last one.
    std::string pressed(const std::string& words)
    {
        int result = 0;
        (void)printed([&] {
            const size_t last = words.rfind(' ') + 1;
            (void)press(words.substr(0, last));
            calls().lines.clear();
            result = press(words.substr(last));
        });
        std::vector<std::string> found = sentences();
        const std::string end = found.empty() ? "" : found.back();
        if (result != 0) {
            found.emplace_back(result == 1 ? "answers yes" : "fails");
        } else if (end == "shows the menu") {
            found.pop_back();
        } else if (end != "hides the menu") {
            found.emplace_back("no redraw");
        }
        return joined(found, ", ");
    }

    // The path and the rows' labels, without the message line.
    static std::vector<std::string> labels(const std::vector<std::string>& rows)
    {
        std::vector<std::string> found = {rows[0]};
        for (size_t at = 1; at < rows.size() && rows[at] != "---"; at++) {
            found.push_back(rows[at].substr(2, rows[at].find("  ", 2) - 2));
        }
        return found;
    }

    // Rows that differ from those before, and the one with the cursor.
    static std::string changed(const std::vector<std::string>& before, const std::vector<std::string>& now)
    {
        const size_t end = labels(now).size();
        const bool others = labels(now) != labels(before);
        std::vector<std::string> found;
        for (size_t at = 1; at < end; at++) {
            if (others || now[at][0] == '>' || before[at].substr(1) != now[at].substr(1)) {
                found.push_back(squeezed(now[at]));
            }
        }
        return (before[0] == now[0] ? "" : now[0] + (found.empty() ? "" : ": ")) + joined(found, "; ") +
               (end == now.size() ? "" : " --- " + now.back());
    }

    void check(const std::string& text)
    {
        const Settings settings = platform();
        std::vector<std::string> told;  // before the first row of a block: the path, and what is seen
        std::vector<std::string> first; // the screen then
        for (const std::vector<std::string>& row : tableIn(text)) {
            SCOPED_TRACE((told.empty() ? "" : told[0]) + ": " + joined(row, " | "));
            if (row.size() == 1) {
                told.resize(std::exchange(first, {}).empty() ? told.size() : 0);
                told.push_back(row[0]);
                continue;
            }
            const std::string keys = replaced(row[0], "^then ", "");
            if (keys == row[0]) {
                static_cast<Settings&>(platform()) = settings;
                openAll(told[0]);
            }
            if (first.empty()) {
                first = screen();
                std::vector<std::string> seen = {told[0]};
                std::transform(first.begin() + 1, first.end(), std::back_inserter(seen), squeezed);
                EXPECT_TRUE(told.size() == 1 || seen == told) << joined(first, "\n");
            }
            EXPECT_EQ(pressed(keys), row.size() == 2 ? "" : row[1]);
            EXPECT_EQ(changed(first, screen()), row.back());
        }
        static_cast<Settings&>(platform()) = settings;
    }
};

} // namespace fake
