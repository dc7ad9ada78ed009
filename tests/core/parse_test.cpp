// Page files: every attribute, nesting, failures, limits.
#include "tests/core/page_text.h"

using namespace fake;
using namespace testing;

static const std::string GOOD = "<I ItemIndex='A' Ctx='NAME' Attr='CONST_TXT'/>";
static const std::string LONG(32, 'k');

class ParseTest : public PageTest {
protected:
    static std::string nested(const std::string& options, const std::string& attributes = "Ctx='NAME'")
    {
        return "<I ItemIndex='A' Attr='SUBITEM' " + attributes + ">" + options + "</I>";
    }

    // Rows of attributes and of what an item makes of them; FITS and LONG are texts of 31 and 32 bytes.
    void expectItems(const std::string& table, const std::string& common = "")
    {
        for (const auto& row : tableIn(replaced(replaced(table, "FITS", LONG.substr(1)), "LONG", LONG))) {
            EXPECT_EQ(parsed("<I ItemIndex='A' " + row[0] + common + "/>"),
                      row[1] == "fails" ? row[1] : "p vertical_align items=1; > t.A (A) " + row[1])
                << row[0];
        }
    }
};

TEST_F(ParseTest, PageAttributes)
{
    platform().untranslated = {"Refused"};
    const std::string table = R"(
        Layout='icon' CountPerLine='4' ConfirmBtn='Yes' RdOnly='1'        | icon CountPerLine=4 ConfirmBtn=1 RdOnly=1
        Layout='vertical_align' CurPagesNum='1/2' NextPage='b' TitlePos='Middle'                 | vertical_align
        Layout='horizontal_align' CountPerLine='4' Msg='Refused' ConfirmBtn='yes' RdOnly='2'     | horizontal_align
        Layout='vertical_tolvane_align' Title='T' TitlePos='Center' | vertical_tolvane_align Title=t.T (T) Center
        Layout='vertical_align_keth' NextPage='b' Title='T' TitlePos='Right' | vertical_align_keth Title=t.T (T) Right
        Layout='vertical_align_keth' CurPagesNum='1' PrevPage='a' | vertical_align_keth CurPagesNum=1 PrevPage=a
        Layout='horizontal_align_keth' Msg='Sure'                            | horizontal_align_keth Msg=t.Sure
        RdOnly='1'                                                           | fails
        Layout='icon' CountPerLine='many'                                    | fails
        Layout='vertical_align' Title='T'                                    | fails
        Layout='vertical_align' Title='Refused' TitlePos='Left'              | fails
        Layout='horizontal_align_keth' Msg='Refused'                         | fails
        Layout='vertical_align_keth' CurPagesNum='1' NextPage='LONG'         | fails
    )";
    for (const auto& row : tableIn(replaced(table, "LONG", LONG))) {
        EXPECT_EQ(parsed("", row[0]), row[1] == "fails" ? row[1] : "p " + row[1]) << row[0];
    }
}

TEST_F(ParseTest, ItemAttributes)
{
    platform().untranslated = {"Refused"};
    const std::string rest = " Pic='n' SelectPic='s' NumOfChar='15' Msg='m' SubPage='s' ConfirmPage='c' "
                             "ItemPos='Center' Line='0'"; // each kind of item takes what it knows
    expectItems(R"(
        Ctx='ICON' Attr='CONST_TXT' PicType='MAINTYPE'               | ICON CONST_TXT PicType=MAINTYPE Pic=n
        Ctx='ICON_TXT' Attr='CONST_TXT' PicType='SUBTYPE'            | ICON_TXT CONST_TXT PicType=SUBTYPE Pic=n
        Ctx='ICON_TXT_KETH' Attr='CONST_TXT' PicType='IPTYPE'        | ICON_TXT_KETH CONST_TXT PicType=IPTYPE Pic=n
        Ctx='NAME_IP_VAL' Attr='CONST_TXT' PicType='CONFIRMTYPE'| NAME_IP_VAL CONST_TXT PicType=CONFIRMTYPE NumOfChar=15
        Ctx='NAME_BAR_VAL' Attr='CONST_TXT' ValType='edittxt' PicType='subtype' | NAME_BAR_VAL CONST_TXT
        Ctx='NAME_VAL' Attr='CONST_TXT' ValType='EDITTXT'            | NAME_VAL CONST_TXT ValType=EDITTXT
        Ctx='NAME' Attr='KEY_WITH_MSG' DataZone='LONG'               | NAME KEY_WITH_MSG DataZone=FITS Msg=m reads=t.m
        Ctx='NAME' Attr='MSG_WITH_SUBITEM' ItemCnt='x'               | NAME MSG_WITH_SUBITEM Msg=m reads=t.m
        Ctx='NAME' Attr='SUBPAGE' ItemCnt='3' ItemIndexOnLine='2' | NAME SUBPAGE ItemCnt=3 ItemIndexOnLine=2 SubPage=s
        Ctx='NAME' Attr='CONFIRM_POP_BTN'                | NAME CONFIRM_POP_BTN ItemPos=Center Line=1 ConfirmPage=c
    )",
                rest);
    expectItems(R"(
        Ctx='NAME' Attr='KEY_WITH_MSG' Msg='Refused'                 | NAME KEY_WITH_MSG Msg=Refused
        Attr='CONST_TXT'                                             | fails
        Ctx='NAME' Attr='TITLE_LINE'                                 | fails
        Ctx='NAME' Attr='KEY_WITH_MSG'                               | fails
        Ctx='NAME' Attr='MSG_WITH_SUBITEM'                           | fails
        Ctx='NAME' Attr='CONFIRM_POP_BTN'                            | fails
        Ctx='ICON' Attr='CONST_TXT' Pic='LONG'                       | fails
    )");
    EXPECT_EQ(parsed("<I Ctx='NAME' Attr='CONST_TXT'/>"), "fails");
    EXPECT_EQ(parsed("<I ItemIndex='Refused' Ctx='NAME' Attr='CONST_TXT'/>"), "fails");
    enMenuStyle = 1;
    EXPECT_THAT(parsed("<I ItemIndex='A' Ctx='ICON_TXT' Attr='CONST_TXT'" + rest + "/>"),
                EndsWith("Pic=n SelectPic=s"));
}

TEST_F(ParseTest, OptionsAndSubItems)
{
    setText("A", "", "Manual");
    const std::string inner = "<I ItemIndex='B' Ctx='NAME' Attr='SUBITEM'><O ModeIndex='X'>" + GOOD + "</O></I>";
    const std::string options = "<O ModeIndex='Auto'/>text<!-- --><O ModeIndex='Manual'>" + GOOD + inner + "</O>";
    EXPECT_EQ(parsed("<!-- -->" + nested(options, "Ctx='NAME_VAL'") + GOOD,
                     "Layout='vertical_align' Title='T' TitlePos='Left'"),
              "p vertical_align Title=t.T (T) Left items=2; > t.A (A) NAME_VAL SUBITEM level=1 [Auto t.Auto] "
              "[Manual t.Manual: t.A (A) NAME CONST_TXT level=2 sub=1: t.B (B) NAME SUBITEM level=2 sub=1 [X t.X: "
              "t.A (A) NAME CONST_TXT level=3 sub=1] = t.X] = t.Manual; t.A (A) NAME CONST_TXT level=1");
    EXPECT_EQ(parsed(nested("<O ModeIndex='X'>" + GOOD + "</O><O/>")), "fails");
    EXPECT_THAT(parsed(nested("<O ModeIndex='On'/>", "Ctx='NAME' ShowValue='0'")),
                EndsWith(" ShowValue=1 [On t.On] [] = t.On")); // the live value counts as one
    const std::string live = "<I ItemIndex='A' Ctx='NAME' Attr='CONST_TXT' ShowValue=''><O ModeIndex='On'/></I>";
    EXPECT_THAT(parsed(live), EndsWith(" ShowValue=1 [ t.Manual] = t.Manual"));
    platform().untranslated = {"Manual"};
    EXPECT_THAT(parsed(live), EndsWith(" ShowValue=1 [ Manual] = Manual"));
}

TEST_F(ParseTest, OptionsAndDepthAreBounded)
{
    const std::string options =
        replaced(std::string(31, 'o'), "o", "<O ModeIndex='o'/>") + "<O ModeIndex='last'>" + GOOD + "</O>";
    EXPECT_THAT(parsed(nested(options)), HasSubstr("[last t.last: t.A (A) NAME CONST_TXT level=1 sub=1]"));
    EXPECT_EQ(parsed(nested(options + "<O ModeIndex='more'/>")), "fails");
    EXPECT_EQ(parsed(nested(options, "Ctx='NAME' ShowValue='1'")), "fails") << "the live value takes one";
    std::string deep = GOOD;
    for (int level = 0; level < 135; level++) {
        EXPECT_TRUE(level != 20 || parsed(deep) != "fails");
        deep = nested("<O ModeIndex='On'>" + deep + "</O>");
    }
    EXPECT_EQ(parsed(deep), "fails") << "deeper than tinyxml2 reads";
    EXPECT_THAT(linesOf({"log 3 line", "log 3 Acquire"}), SizeIs(3)) << "each bound is told";
}

TEST_F(ParseTest, FailuresKeepWhatWasThereBefore)
{
    const std::string bad = nested("<O ModeIndex='On'>" + GOOD + "<I ItemIndex='B' Ctx='NAME' Attr='SUBPAGE'/></O>");
    const std::string items = "<P Layout='vertical_align'>" + GOOD + GOOD + bad + GOOD + "</P>";
    const std::string path = OSD_RESOURCE_DIR "/menu/p_page.xml";
    const std::vector<std::string> cases[] = {
        // failing call, document, page, what is printed, what is logged
        {"document", "<P/>", "before horizontal_align", "", "log 3 Load " + path + " failed\n"},
        {"", "<", "before horizontal_align", "[F:L] \n", "log 3 Acquire " + path + " root failed\n"},
        {"language", "<P/>", "before horizontal_align", "[F:L] \nF L failed\n"},
        {"", items, "p vertical_align items=2", "[F:L] \nF L failed\nF L failed\nF L failed\n"}};
    for (const std::vector<std::string>& c : cases) {
        gstPageMgr.astPage[0].enLayout = PAGE_LAYOUT_HORIZONTAL;
        setField(gstPageMgr.astPage[0].acPageName, "before");
        platform().pages["p"] = c[1];
        calls().lines.clear();
        failCall(c[0]);
        EXPECT_EQ(printed([] { open("p", -1); }), c[3]);
        EXPECT_EQ(describe(gstPageMgr.astPage[0]), c[2]);
        EXPECT_EQ(linesOf({"log"}), std::vector<std::string>(c.begin() + 4, c.end()));
        stop();
    }
    platform().pages[LONG] = items;
    open(LONG, -1); // no page record holds such a name
}
