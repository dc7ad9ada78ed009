// Keys on pages, as a table of text.
//     page   "name attributes = items", a vertical list without attributes
//     row    "pages opened; keys; calls that they make; state afterwards", with the calls behind the last "|" alone and a
//            result that isn't 0 as the last of them
#pragma once

#include <sstream>

#include "menu/core/page.h"
#include "tests/fake/keys.h"
#include "tests/fake/menu_test.h"

namespace fake {

class NavTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        setText("G", "Auto:Low:High", "Auto");
        setText("W", "A:B:C", "B");
        setText("X", "X:Y", "X");
        setText("DnsMode", "AutoMode:Manual", "AutoMode");
        setText("Ip", "", "192.168.1.5");
        setNumber("Z", 0, 10, 3, 9);
        (void)press("Mode=A Deep=A IpMode=DhcpIp");
        platform().host = [](tagITEM_NODE_S* item) { record("do " + shown(*item)); };
        // redraws of lists stand for those of all layouts
        platform().pushed = [](OSD_BOOL show) {
            const tagPAGE_NODE_S* page = osdXmlGetCurPage();
            if (show == 0 || page == nullptr || page->enLayout == PAGE_LAYOUT_VERTICAL) {
                record(show == 0 ? "hide" : "show " + pageState(*page, false));
            }
        };
        start({0, 2, 0, {0.0f, 0.0f, 0.02f, 0.04f}, false});
    }

    // The kind of an item is the mark behind its key: "Gain", "Zoom#", "More>page"; "Mode[ (A Gain ) (B ) ]" has options.
    static std::string itemText(const std::string& token)
    {
        // clang-format off
        static const std::map<char, const char*> kinds = {
            {' ', "NAME_VAL' Attr='COMMON"}, {'~', "NAME_IP_VAL' Attr='COMMON"}, {'!', "NAME_VAL' Attr='KEY_WITH_MSG"},
            {'[', "NAME_VAL' Attr='SUBITEM"}, {'{', "NAME_VAL' Attr='MSG_WITH_SUBITEM"}, {'>', "NAME' Attr='SUBPAGE"},
            {'.', "NAME' Attr='CONFIRM"}, {',', "NAME_VAL' Attr='CONFIRM"}, {':', "NAME_VAL' Attr='CONFIRM_POP"},
            {'+', "NAME' Attr='CONFIRM_POP_BTN"}, {'-', "NAME' Attr='CONST_TXT"}, {'?', "NAME_VAL' Attr='STATUS"},
            {'#', "NAME_BAR_VAL' Attr='COMMON' ValType='NUMERICAL"}, {'@', "NAME_IP_VAL' Attr='EDITABLE' ValType='EDITTXT"}};
        // clang-format on
        if (token == ")" || token == "]" || token[0] == '(') {
            return token == ")" ? "</O>" : token == "]" ? "</I>" : "<O ModeIndex='" + token.substr(1) + "'>";
        }
        const size_t at = std::min(token.find_first_of("#!@-{?[>:.+,~"), token.size());
        const std::string rest = at < token.size() ? token.substr(at + 1) : "";
        const char mark = at < token.size() ? token[at] : ' ';
        return "<I ItemIndex='" + token.substr(0, at) + "' Ctx='" + kinds.at(mark) +
               "' NumOfChar='15' Msg='Press' Value='Go' " + "SubPage='" + rest + "' ConfirmPage='" + rest +
               "' PicType='" + rest + (mark == '[' || mark == '{' ? "'>" : "'/>");
    }

    static void file(const std::string& line)
    {
        std::istringstream items(line.substr(line.find(" = ") + 3));
        const size_t end = line.find(' ');
        const std::string attributes = line.substr(end, line.find(" = ") - end);
        const bool bare = attributes.find("Layout") == std::string::npos;
        std::string text = "<P " + attributes + (bare ? " Layout='vertical_align'>" : ">");
        for (std::string token; items >> token;) {
            text += itemText(token);
        }
        platform().pages[line.substr(0, end)] = text + "</P>";
    }

    void openAll(const std::string& names)
    {
        while (gstPageMgr.s32PageCnt > 0) {
            (void)osdMenuReleaseSinglePage();
        }
        std::istringstream in(names);
        for (std::string name; in >> name; gstPageMgr.s32PageCnt++) {
            (void)printed([&] {
                EXPECT_EQ(OSD_MENU_ParseXml(name.data(), &gstPageMgr.astPage[gstPageMgr.s32PageCnt]), 0) << name;
            });
        }
    }

    std::string pressed(const std::string& words)
    {
        int result = 0;
        calls().lines.clear();
        (void)printed([&] { result = press(words); });
        std::string text;
        for (const std::string& line : linesOf(seen)) {
            text += (text.empty() ? "" : ", ") + replaced(line, R"(document .*/(\w+)_page.xml 1)", "read $1");
        }
        return text + (result == 0 ? "" : (text.empty() ? "" : ", ") + std::to_string(result));
    }

    void check(const std::string& table)
    {
        std::istringstream in(table);
        for (std::string line; std::getline(in, line);) {
            line = line.substr(std::min(line.find_first_not_of(' '), line.size()));
            const auto row = matched(line, R"(([^;]*); ?([^;]*); ?([^;]*); ?([^;]*))");
            if (!row.empty()) {
                SCOPED_TRACE(line);
                auto& now = platform();
                const auto before = std::make_tuple(now.texts, now.numbers, now.answers, now.language);
                openAll(row[0]);
                EXPECT_EQ(pressed(row[1]), row[2]);
                EXPECT_EQ(state(), row[3]);
                std::tie(now.texts, now.numbers, now.answers, now.language) = before; // for the next row
            } else if (!line.empty()) {
                file(line);
            }
        }
    }

    std::vector<std::string> seen = {"show ", "hide", "do ", "set ", "sleep ", "document "};
};

} // namespace fake
