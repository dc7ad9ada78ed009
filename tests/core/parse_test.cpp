// Page files: every attribute, nesting, failures, limits.
#include "tests/core/page_text.h"

using namespace fake;
using namespace testing;

static const std::string GOOD = item("A NAME CONST_TXT");
static const std::string FITS(31, 'k');
static const std::string LONG(32, 'k');

class ParseTest : public PageTest {};

TEST_F(ParseTest, PageAttributes)
{
    platform().untranslated = {"Refused"};
    const std::pair<std::string, std::string> cases[] = {
        {"Layout='icon' CountPerLine='4' ConfirmBtn='Yes' RdOnly='1'", "p perLine=4 confirm=1 rdOnly=1"},
        {"Layout='vertical_align' CurPagesNum='1/2' NextPage='b' TitlePos='Middle'", "p layout=1"},
        {"Layout='horizontal_align' CountPerLine='4' Msg='Refused' ConfirmBtn='yes' RdOnly='2'", "p layout=2"},
        {"Layout='vertical_tolvane_align' Title='T' TitlePos='Center'", "p layout=3 title=T|t.T pos=2"},
        {"Layout='vertical_align_keth' CurPagesNum='1' NextPage='b' PrevPage='a'", "p layout=4 num=1 next=b prev=a"},
        {"Layout='vertical_align_keth' NextPage='b' Title='T' TitlePos='Right'", "p layout=4 title=T|t.T pos=1"},
        {"Layout='horizontal_align_keth' Msg='Sure'", "p layout=5 msg=t.Sure"},
        {"", "fails"},
        {"Layout='icon' CountPerLine='many'", "fails"},
        {"Layout='vertical_align' Title='T'", "fails"},
        {"Layout='vertical_align' Title='Refused' TitlePos='Left'", "fails"},
        {"Layout='vertical_align' Title='" + LONG + "' TitlePos='Left'", "fails"},
        {"Layout='horizontal_align_keth' Msg='Refused'", "fails"},
        {"Layout='vertical_align_keth' CurPagesNum='1' NextPage='" + LONG + "'", "fails"},
    };
    for (const auto& [attributes, description] : cases) {
        EXPECT_EQ(parsed(page("", attributes)), description) << attributes;
    }
}

TEST_F(ParseTest, ItemAttributes)
{
    platform().untranslated = {"Refused"};
    const std::string rest = " Pic='n' SelectPic='s' NumOfChar='15' Msg='m' SubPage='s' ConfirmPage='c' "
                             "ItemPos='Center' Line='0' "; // each kind of item takes what it knows
    const std::pair<std::string, std::string> cases[] = {
        {"A ICON CONST_TXT PicType='MAINTYPE'" + rest, "ctx=0 attr=0 pic=0 active=1 icon=n"},
        {"A ICON_TXT CONST_TXT PicType='SUBTYPE'" + rest, "ctx=1 attr=0 pic=1 active=1 icon=n"},
        {"A ICON_TXT_KETH CONST_TXT PicType='IPTYPE'" + rest, "ctx=6 attr=0 pic=2 active=1 icon=n"},
        {"A NAME_IP_VAL CONST_TXT PicType='CONFIRMTYPE'" + rest, "ctx=5 attr=0 pic=3 active=1 chars=15"},
        {"A NAME_BAR_VAL CONST_TXT ValType='edittxt' PicType='subtype'" + rest, "ctx=3 attr=0 active=1"},
        {"A NAME_VAL CONST_TXT ValType='EDITTXT'" + rest, "ctx=4 attr=0 type=2 active=1"},
        {"A NAME KEY_WITH_MSG DataZone='" + LONG + "'" + rest, "ctx=2 attr=2 active=1 zone=" + FITS + " msg=m|t.m"},
        {"A NAME MSG_WITH_SUBITEM ItemCnt='x'" + rest, "ctx=2 attr=11 active=1 msg=m|t.m"},
        {"A NAME SUBPAGE ItemCnt='3' ItemIndexOnLine='2'" + rest, "ctx=2 attr=9 active=1 count=3 index=2 opens=s"},
        {"A NAME CONFIRM_POP_BTN" + rest, "ctx=2 attr=7 active=1 pos=2 line=1 asks=c"},
        {"A NAME CONFIRM_POP_BTN ConfirmPage='" + FITS + "'", "ctx=2 attr=7 active=1 asks=" + FITS},
        {"A NAME KEY_WITH_MSG Msg='Refused'", "ctx=2 attr=2 active=1 msg=Refused|"},
    };
    for (const auto& [text, description] : cases) {
        EXPECT_EQ(parsed(page(item(text))), "p layout=1 items=1; A|t.A " + description) << text;
    }
    for (const std::string wrong :
         {"Ctx='NAME' Attr='CONST_TXT'", "Refused NAME CONST_TXT", "ItemIndex='A' Attr='CONST_TXT'", "A name CONST_TXT",
          "A NAME TITLE_LINE", "A NAME KEY_WITH_MSG", "A NAME MSG_WITH_SUBITEM", "A NAME CONFIRM_POP_BTN"}) {
        EXPECT_EQ(parsed(page(item(wrong))), "fails") << wrong;
    }
    EXPECT_EQ(parsed(page(item("A ICON CONST_TXT Pic='" + LONG + "'"))), "fails");
    enMenuStyle = 1;
    EXPECT_THAT(parsed(page(item("A ICON_TXT CONST_TXT" + rest))), EndsWith(" icon=n selected=s"));
}

TEST_F(ParseTest, OptionsAndSubItems)
{
    setText("Mode", "", "Manual");
    setText("Live", "", "Low");
    const std::string inner = item("B NAME SUBITEM", "<O ModeIndex='X'>" + GOOD + "</O>");
    const std::string options = "<O ModeIndex='Auto'/>text<!-- --><O ModeIndex='Manual'>" + GOOD + inner + "</O>";
    EXPECT_EQ(parsed("<!-- -->" + page(item("Mode NAME_VAL SUBITEM", options) + GOOD,
                                       "Layout='vertical_align' Title='T' TitlePos='Left'")),
              "p layout=1 title=T|t.T items=2; Mode|t.Mode ctx=4 attr=8 level=1 active=1 [Auto|t.Auto][Manual|t.Manual"
              "{A|t.A ctx=2 attr=0 level=2 sub=1}{B|t.B ctx=2 attr=8 level=2 sub=1 [X|t.X"
              "{A|t.A ctx=2 attr=0 level=3 sub=1}]}] cur=1 saved=1; A|t.A ctx=2 attr=0 level=1");
    EXPECT_EQ(parsed(page(item("Mode NAME SUBITEM", "<O ModeIndex='X'>" + GOOD + "</O><O/>"))), "fails");
    EXPECT_THAT(parsed(page(item("Live NAME SUBITEM ShowValue='0'", "<O ModeIndex='On'/>"))),
                EndsWith(" live=1 [On|t.On][|]")); // the live value counts as one
    EXPECT_THAT(parsed(page(item("Live NAME CONST_TXT ShowValue=''", options))), EndsWith(" live=1 [|t.Low]"));
    platform().untranslated = {"Low"};
    EXPECT_THAT(parsed(page(item("Live NAME CONST_TXT ShowValue=''"))), EndsWith(" live=1 [|Low]"));
}

TEST_F(ParseTest, OptionsAndDepthAreBounded)
{
    std::string options = "<O ModeIndex='first'/>";
    for (int option = 1; option < 31; option++) {
        options += "<O ModeIndex='o'/>";
    }
    options += "<O ModeIndex='last'>" + GOOD + "</O>";
    EXPECT_THAT(parsed(page(item("A NAME SUBITEM", options))),
                AllOf(HasSubstr(" [first|t.first][o|"), EndsWith("[last|t.last{A|t.A ctx=2 attr=0 level=1 sub=1}]")));
    EXPECT_EQ(parsed(page(item("A NAME SUBITEM", options + "<O ModeIndex='more'/>"))), "fails");
    EXPECT_EQ(parsed(page(item("A NAME SUBITEM ShowValue='1'", options))), "fails") << "the live value takes one";

    std::string nested = GOOD;
    for (int level = 0; level < 135; level++) {
        EXPECT_TRUE(level != 20 || parsed(page(nested)) != "fails");
        nested = item("A NAME SUBITEM", "<O ModeIndex='On'>" + nested + "</O>");
    }
    EXPECT_EQ(parsed(page(nested)), "fails") << "deeper than tinyxml2 reads";
    EXPECT_THAT(linesOf({"log 3 line", "log 3 Acquire"}), SizeIs(3)) << "each bound is told";
}

TEST_F(ParseTest, FailuresKeepWhatWasThereBefore)
{
    const std::string bad = item("Bad NAME SUBITEM", "<O ModeIndex='On'>" + GOOD + item("B NAME SUBPAGE") + "</O>");
    const std::string path = OSD_RESOURCE_DIR "/menu/p_page.xml";
    const std::vector<std::string> cases[] = {
        {"document", "<P/>", "before layout=2", "", "log 3 Load " + path + " failed\n"},
        {"", "<", "before layout=2", "[F:L] \n", "log 3 Acquire " + path + " root failed\n"},
        {"language", "<P/>", "before layout=2", "[F:L] \nF L failed\n"},
        {"", page(GOOD + GOOD + bad + GOOD), "p layout=1 items=2", "[F:L] \nF L failed\nF L failed\nF L failed\n"}};
    for (const std::vector<std::string>& c : cases) { // failing call, document, page, what is printed, what is logged
        setField(addPage(PAGE_LAYOUT_HORIZONTAL)->acPageName, "before");
        gstPageMgr.s32PageCnt = 0;
        calls().lines.clear();
        failCall(c[0]);
        EXPECT_EQ(printed([&] { open("p", c[1], -1); }), c[3]);
        EXPECT_EQ(describe(gstPageMgr.astPage[0]), c[2]);
        EXPECT_EQ(linesOf({"log"}), std::vector<std::string>(c.begin() + 4, c.end()));
        stop();
    }
    open(LONG, page(""), -1); // no page record holds such a name
}
