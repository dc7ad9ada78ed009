// Page files: every attribute, nesting, failures, limits.
#include <tinyxml2.h>

#include "tests/fake/menu_test.h"

using namespace fake;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string page(const std::string& children, const std::string& attributes = "Layout='vertical_align'")
{
    return "<Page " + attributes + ">" + children + "</Page>";
}

std::string item(const std::string& attributes, const std::string& children = "")
{
    return "<Item " + attributes + ">" + children + "</Item>";
}

const std::string GOOD = item("ItemIndex='A' Ctx='NAME' Attr='CONST_TXT'");

} // namespace

class ParseTest : public MenuTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        platform().untranslated = {"Refused"};
    }

    // The first item of a page of one item, described; "" when the page fails.
    std::string parsed(const std::string& element)
    {
        platform().pages["p"] = page(element);
        char name[] = "p";
        tagPAGE_NODE_S* record = &gstPageMgr.astPage[0];
        const int result = OSD_MENU_ParseXml(name, record);
        gstPageMgr.s32PageCnt = 1;
        EXPECT_EQ(record->s32ItemCnt, result == 0 ? 1 : 0) << element;
        const std::string text = result == 0 ? describe(*itemAt(record->stItemList, 0)) : "";
        stop();
        return text;
    }
};

TEST_F(ParseTest, PageAttributes)
{
    const struct {
        const char* attributes;
        const char* description; // null: the page fails
    } cases[] = {
        {"Layout='vertical_align'", "p layout=1"},
        {"Layout='icon' CountPerLine='4'", "p perLine=4"},
        {"Layout='horizontal_align' CountPerLine='4'", "p layout=2"},
        {"Layout='vertical_tolvane_align'", "p layout=3"},
        {"Layout='vertical_align_keth'", "p layout=4"},
        {"Layout='horizontal_align_keth'", "p layout=5"},
        {"", nullptr},
        {"Layout='Icon' CountPerLine='4'", nullptr},
        {"Layout='icon'", nullptr},
        {"Layout='icon' CountPerLine='many'", nullptr},
        {"Layout='vertical_align_keth' CurPagesNum='1/2' NextPage='b' PrevPage='a'",
         "p layout=4 num=1/2 next=b prev=a"},
        {"Layout='vertical_align_keth' NextPage='b' PrevPage='a'", "p layout=4"},
        {"Layout='vertical_align' CurPagesNum='1/2' NextPage='b'", "p layout=1"},
        {"Layout='horizontal_align_keth' Msg='Sure'", "p layout=5 msg=t.Sure"},
        {"Layout='horizontal_align_keth' Msg='Refused'", nullptr},
        {"Layout='horizontal_align' Msg='Refused'", "p layout=2"},
        {"Layout='vertical_align' Title='T' TitlePos='Left'", "p layout=1 title=T|t.T"},
        {"Layout='vertical_align' Title='T' TitlePos='Right'", "p layout=1 title=T|t.T pos=1"},
        {"Layout='vertical_align' Title='T' TitlePos='Center'", "p layout=1 title=T|t.T pos=2"},
        {"Layout='vertical_align' Title='T' TitlePos='Middle'", nullptr},
        {"Layout='vertical_align' Title='T'", nullptr},
        {"Layout='vertical_align' Title='Refused' TitlePos='Left'", nullptr},
        {"Layout='vertical_align' TitlePos='Middle'", "p layout=1"},
        {"Layout='vertical_align' ConfirmBtn='Yes' RdOnly='1'", "p layout=1 confirm=1 rdOnly=1"},
        {"Layout='vertical_align' ConfirmBtn='yes' RdOnly='2'", "p layout=1"},
        {"Layout='vertical_align' ConfirmBtn='1' RdOnly='Yes'", "p layout=1"},
    };
    for (const auto& c : cases) {
        const int expected = c.description != nullptr ? 0 : -1;
        const std::string output = printed([&] { open("p", page("", c.attributes), expected); });
        EXPECT_EQ(output, c.description != nullptr ? "[F:L] \n" : "[F:L] \nF L failed\n") << c.attributes;
        const tagPAGE_NODE_S& record = gstPageMgr.astPage[0];
        EXPECT_STREQ(record.acPageName, "p");
        EXPECT_EQ(record.stItemList.next, &record.stItemList);
        if (c.description != nullptr) {
            EXPECT_EQ(describe(record), c.description);
        }
        stop();
    }
}

TEST_F(ParseTest, ItemAttributes)
{
    const std::string head = "ItemIndex='A' Ctx='NAME' Attr='CONST_TXT' ";
    const std::string icon = "ItemIndex='A' Attr='CONST_TXT' Pic='n' SelectPic='s' NumOfChar='15' ";
    const struct {
        std::string attributes;
        const char* description; // empty: the item fails
    } cases[] = {
        {head, "A|t.A ctx=2 attr=0 active=1"},
        {"Ctx='NAME' Attr='CONST_TXT'", ""},
        {"ItemIndex='Refused' Ctx='NAME' Attr='CONST_TXT'", ""},
        {"ItemIndex='A' Attr='CONST_TXT'", ""},
        {"ItemIndex='A' Ctx='name' Attr='CONST_TXT'", ""},
        {"ItemIndex='A' Ctx='NAME'", ""},
        {"ItemIndex='A' Ctx='NAME' Attr='TITLE_LINE'", ""}, // has no keyword
        {head + "ItemCnt='3' ItemIndexOnLine='2'", "A|t.A ctx=2 attr=0 active=1 count=3 index=2"},
        {head + "ItemCnt='x' ItemIndexOnLine='y'", "A|t.A ctx=2 attr=0 active=1"},
        {icon + "Ctx='ICON'", "A|t.A ctx=0 attr=0 active=1 icon=n"},
        {icon + "Ctx='ICON_TXT'", "A|t.A ctx=1 attr=0 active=1 icon=n"},
        {icon + "Ctx='ICON_TXT_KETH'", "A|t.A ctx=6 attr=0 active=1 icon=n"},
        {icon + "Ctx='NAME_BAR_VAL'", "A|t.A ctx=3 attr=0 active=1"},
        {icon + "Ctx='NAME_VAL'", "A|t.A ctx=4 attr=0 active=1"},
        {icon + "Ctx='NAME_IP_VAL'", "A|t.A ctx=5 attr=0 active=1 chars=15"},
        {"ItemIndex='A' Ctx='NAME_IP_VAL' Attr='CONST_TXT' NumOfChar='x'", "A|t.A ctx=5 attr=0 active=1"},
        {head + "ValType='NUMERICAL'", "A|t.A ctx=2 attr=0 type=0 active=1 0..0/0=0,0"},
        {head + "ValType='EDITTXT'", "A|t.A ctx=2 attr=0 type=2 active=1"},
        {head + "ValType='edittxt' PicType='maintype'", "A|t.A ctx=2 attr=0 active=1"},
        {head + "PicType='MAINTYPE'", "A|t.A ctx=2 attr=0 pic=0 active=1"},
        {head + "PicType='SUBTYPE'", "A|t.A ctx=2 attr=0 pic=1 active=1"},
        {head + "PicType='IPTYPE'", "A|t.A ctx=2 attr=0 pic=2 active=1"},
        {head + "PicType='CONFIRMTYPE'", "A|t.A ctx=2 attr=0 pic=3 active=1"},
        {head + "DataZone='Cam0'", "A|t.A ctx=2 attr=0 active=1 zone=Cam0"},
        {head + "Msg='m' SubPage='s' ConfirmPage='c' Line='' ItemPos='Center'", "A|t.A ctx=2 attr=0 active=1"},
        {"ItemIndex='A' Ctx='NAME' Attr='STATUS'", "A|t.A ctx=2 attr=1 active=1"},
        {"ItemIndex='A' Ctx='NAME' Attr='COMMON'", "A|t.A ctx=2 attr=3 active=1"},
        {"ItemIndex='A' Ctx='NAME' Attr='EDITABLE'", "A|t.A ctx=2 attr=4 active=1 [][]"},
        {"ItemIndex='A' Ctx='NAME' Attr='CONFIRM'", "A|t.A ctx=2 attr=5 active=1"},
        {"ItemIndex='A' Ctx='NAME' Attr='CONFIRM_POP'", "A|t.A ctx=2 attr=6 active=1"},
        {"ItemIndex='A' Ctx='NAME' Attr='KEY_WITH_MSG' Msg='m'", "A|t.A ctx=2 attr=2 active=1 msg=m|t.m"},
        {"ItemIndex='A' Ctx='NAME' Attr='KEY_WITH_MSG' Msg='Refused'", "A|t.A ctx=2 attr=2 active=1 msg=Refused|"},
        {"ItemIndex='A' Ctx='NAME' Attr='KEY_WITH_MSG'", ""},
        {"ItemIndex='A' Ctx='NAME' Attr='MSG_WITH_SUBITEM' Msg='m'", "A|t.A ctx=2 attr=11 active=1 msg=m|t.m"},
        {"ItemIndex='A' Ctx='NAME' Attr='MSG_WITH_SUBITEM'", ""},
        {"ItemIndex='A' Ctx='NAME' Attr='SUBPAGE' SubPage='s'", "A|t.A ctx=2 attr=9 active=1 opens=s"},
        {"ItemIndex='A' Ctx='NAME' Attr='SUBPAGE'", ""},
        {"ItemIndex='A' Ctx='NAME' Attr='CONFIRM_POP_BTN' ItemPos='Center' ConfirmPage='c' Line='0'",
         "A|t.A ctx=2 attr=7 active=1 pos=2 line=1 asks=c"},
        {"ItemIndex='A' Ctx='NAME' Attr='CONFIRM_POP_BTN' ItemPos='Left' ConfirmPage='c'",
         "A|t.A ctx=2 attr=7 active=1 asks=c"},
        {"ItemIndex='A' Ctx='NAME' Attr='CONFIRM_POP_BTN'", ""},
    };
    for (const auto& c : cases) {
        (void)printed([&] { EXPECT_EQ(parsed(item(c.attributes)), c.description) << c.attributes; });
    }
    enMenuStyle = 1;
    EXPECT_EQ(parsed(item(icon + "Ctx='ICON_TXT'")), "A|t.A ctx=1 attr=0 active=1 icon=n selected=s");
    enMenuStyle = 1;
    EXPECT_EQ(parsed(item(icon + "Ctx='NAME_VAL'")), "A|t.A ctx=4 attr=0 active=1");
}

TEST_F(ParseTest, OptionsAndSubItems)
{
    setText("Mode", "", "Manual");
    setText("Live", "", "Low");
    const std::string options = "<O ModeIndex='Auto'/><O ModeIndex='Manual'>" + GOOD +
                                item("ItemIndex='B' Ctx='NAME' Attr='SUBITEM'", "<O ModeIndex='X'>" + GOOD + "</O>") +
                                "</O>text<!-- --><O ModeIndex='Off'/>";
    EXPECT_EQ(parsed(item("ItemIndex='Mode' Ctx='NAME_VAL' Attr='SUBITEM'", options)),
              "Mode|t.Mode ctx=4 attr=8 active=1 [Auto|t.Auto][Manual|t.Manual"
              "{A|t.A ctx=2 attr=0 level=1 sub=1}"
              "{B|t.B ctx=2 attr=8 level=1 sub=1 [X|t.X{A|t.A ctx=2 attr=0 level=2 sub=1}]}]"
              "[Off|t.Off] cur=1 saved=1");
    EXPECT_EQ(parsed(item("ItemIndex='A' Ctx='NAME_VAL' Attr='CONST_TXT'", options)), "A|t.A ctx=4 attr=0 active=1")
        << "children of other items are ignored";
    EXPECT_EQ(parsed(item("ItemIndex='Live' Ctx='NAME' Attr='CONST_TXT' ShowValue=''")),
              "Live|t.Live ctx=2 attr=0 active=1 live=1 [|t.Low]");
    EXPECT_EQ(parsed(item("ItemIndex='Live' Ctx='NAME' Attr='SUBITEM' ShowValue='0'", "<O ModeIndex='On'/>")),
              "Live|t.Live ctx=2 attr=8 active=1 live=1 [On|t.On][|]")
        << "the live value counts as one";
    (void)printed([&] {
        const std::string mode = "ItemIndex='Mode' Ctx='NAME' Attr='SUBITEM'";
        EXPECT_EQ(parsed(item(mode, "<O/>")), "");
        EXPECT_EQ(parsed(item(mode, "<O ModeIndex='On'>" + GOOD + "</O><O ModeIndex='Refused'/>")), "");
    });
}

TEST_F(ParseTest, PageOfAllLevels)
{
    setText("IpMode", "", "StaticIp");
    setText("IpAddr", "", "10.0.0.7");
    const tagPAGE_NODE_S* record = open("network", R"(<?xml version="1.0"?><!-- any name serves -->
        <x Layout="vertical_align" Title="network" TitlePos="Left" ConfirmBtn="Yes">text
            <y ItemIndex="DeviceName" Ctx="NAME_VAL" Attr="STATUS"/>
            <z ItemIndex="IpMode" Ctx="NAME_VAL" Attr="MSG_WITH_SUBITEM" Msg="Confirm" PicType="SUBTYPE">
                <a ModeIndex="DhcpIp"/>
                <b ModeIndex="StaticIp">
                    <c ItemIndex="IpAddr" Ctx="NAME_IP_VAL" Attr="EDITABLE" ValType="EDITTXT" NumOfChar="15"/>
                </b>
            </z>
            <y ItemIndex="Confirm" Ctx="NAME" Attr="CONFIRM_POP_BTN" ItemPos="Center" ConfirmPage="confirm"/>
        </x>)");
    EXPECT_EQ(describe(*record), "network layout=1 title=network|t.network confirm=1 items=3");
    EXPECT_EQ(describe(*itemAt(record->stItemList, 0)), "DeviceName|t.DeviceName ctx=4 attr=1 level=1 active=1 [|]");
    EXPECT_EQ(describe(*itemAt(record->stItemList, 1)),
              "IpMode|t.IpMode ctx=4 attr=11 pic=1 level=1 msg=Confirm|t.Confirm [DhcpIp|t.DhcpIp][StaticIp|t.StaticIp"
              "{IpAddr|t.IpAddr ctx=5 attr=4 type=2 level=2 sub=1 chars=15 [10.0.0.7][10.0.0.7]}] cur=1 saved=1");
    EXPECT_EQ(describe(*itemAt(record->stItemList, 2)), "Confirm|t.Confirm ctx=2 attr=7 level=1 pos=2 asks=confirm");
}

TEST_F(ParseTest, FailingItemEndsThePage)
{
    const std::string bad = item("ItemIndex='Bad' Ctx='NAME' Attr='SUBITEM'",
                                 "<O ModeIndex='On'>" + GOOD + item("ItemIndex='B' Ctx='NAME'") + "</O>");
    const tagPAGE_NODE_S* record = nullptr;
    const std::string output = printed([&] { record = open("p", page(GOOD + GOOD + bad + GOOD + GOOD), -1); });
    EXPECT_EQ(output, "[F:L] \nF L failed\nF L failed\nF L failed\n") << "sub-item, item and page";
    EXPECT_THAT(itemNames(record), ElementsAre("A", "A"));
    EXPECT_EQ(record->s32ItemCnt, 2);
    EXPECT_EQ(liveItems(), 2);
    EXPECT_EQ(itemAt(record->stItemList, 0)->bActive, 1);
    EXPECT_EQ(itemAt(record->stItemList, 1)->bActive, 0);
}

TEST_F(ParseTest, FailuresBeforeTheAttributesLeaveTheRecord)
{
    const std::string path = OSD_RESOURCE_DIR "/menu/p_page.xml";
    const struct {
        const char* failing;
        const char* document;
        std::vector<std::string> log;
        const char* printed;
    } cases[] = {{"document", "<P/>", {"log 3 Load " + path + " failed\n"}, ""},
                 {"", "", {"log 3 Acquire " + path + " root failed\n"}, "[F:L] \n"},
                 {"language", "<P/>", {}, "[F:L] \nF L failed\n"}};
    for (const auto& c : cases) {
        tagPAGE_NODE_S* record = &gstPageMgr.astPage[0];
        setField(record->acPageName, "before");
        record->enLayout = PAGE_LAYOUT_HORIZONTAL;
        calls().lines.clear();
        failCall(c.failing);
        EXPECT_EQ(printed([&] { open("p", c.document, -1); }), c.printed) << c.failing;
        EXPECT_EQ(linesOf({"log"}), c.log);
        EXPECT_EQ(describe(*record), "before layout=2");
        EXPECT_EQ(record->stItemList.next, &record->stItemList);
        stop();
    }
}

TEST_F(ParseTest, GarbageIsRefused)
{
    for (const char* document : {"<", "text", "<P", "<!-- only -->", "<P/>", "<P Layout='vertical_align'><I></P>",
                                 "<P Layout='vertical_align'><I/></P>", "\x01\xFF\xFE<\x80>", "<P Layout=>",
                                 "<P Layout='vertical_align'>&unknown;<I Attr='&#xFFFFFFFF;'/></P>"}) {
        (void)printed([&] {
            const tagPAGE_NODE_S* record = open("p", document, -1);
            EXPECT_EQ(record->stItemList.next, &record->stItemList) << document;
        });
        stop();
    }
}

TEST_F(ParseTest, TextOfMoreThan31BytesIsRefused)
{
    const std::string base = "Layout='vertical_align' ";
    const std::string name = "ItemIndex='A' Ctx='NAME' Attr=";
    const std::string icon = "ItemIndex='A' Ctx='ICON' Attr='CONST_TXT' ";
    const std::string keth = "Layout='vertical_align_keth' CurPagesNum='";
    const std::pair<std::string, std::string> documents[] = {
        // up to the text, and what follows it
        {"<P " + base + "TitlePos='Left' Title='", "'/>"},
        {"<P Layout='horizontal_align_keth' Msg='", "'/>"},
        {"<P " + keth, "'/>"},
        {"<P " + keth + "1' NextPage='", "'/>"},
        {"<P " + keth + "1' PrevPage='", "'/>"},
        {"<P " + base + "><I Ctx='NAME' Attr='CONST_TXT' ItemIndex='", "'/></P>"},
        {"<P " + base + "><I " + icon + "Pic='", "'/></P>"},
        {"<P " + base + "><I " + icon + "SelectPic='", "'/></P>"},
        {"<P " + base + "><I " + name + "'CONFIRM_POP_BTN' ConfirmPage='", "'/></P>"},
        {"<P " + base + "><I " + name + "'KEY_WITH_MSG' Msg='", "'/></P>"},
        {"<P " + base + "><I " + name + "'SUBPAGE' SubPage='", "'/></P>"},
        {"<P " + base + "><I " + name + "'SUBITEM'><O ModeIndex='", "'/></I></P>"}};
    for (const auto& [before, after] : documents) {
        for (size_t length : {31u, 32u, 5000u}) {
            (void)printed([&, before = before, after = after] {
                enMenuStyle = 1;
                open("p", before + std::string(length, 'k') + after, length == 31 ? 0 : -1);
            });
            stop();
        }
    }
    const std::string zone = "ItemIndex='A' Ctx='NAME' Attr='CONST_TXT' DataZone='" + std::string(5000, 'z') + "'";
    EXPECT_EQ(parsed(item(zone)), "A|t.A ctx=2 attr=0 active=1 zone=" + std::string(31, 'z')) << "cut, not refused";
    std::string page(5000, 'n');
    EXPECT_EQ(OSD_MENU_ParseXml(page.data(), &gstPageMgr.astPage[0]), -1);
    EXPECT_EQ(gstPageMgr.astPage[0].stItemList.next, &gstPageMgr.astPage[0].stItemList);
}

TEST_F(ParseTest, ThirtyTwoOptionsAndNoMore)
{
    const std::string head = "ItemIndex='A' Ctx='NAME' Attr='SUBITEM' ";
    std::string options;
    for (int option = 0; option < 31; option++) {
        options += "<O ModeIndex='o'/>";
    }
    const std::string last = "<O ModeIndex='last'>" + GOOD + "</O>";
    EXPECT_THAT(parsed(item(head, options + last)),
                testing::EndsWith("[last|t.last{A|t.A ctx=2 attr=0 level=1 sub=1}]"));
    (void)printed([&] {
        EXPECT_EQ(parsed(item(head, options + "<O ModeIndex='o'/>" + last)), "");
        EXPECT_EQ(parsed(item(head + "ShowValue='1'", options + last)), "") << "the live value takes one";
    });
}

TEST_F(ParseTest, DepthIsBounded)
{
    int levels = 20;
    platform().build = [&levels](tinyxml2::XMLDocument& document) {
        tinyxml2::XMLElement* parent = document.NewElement("P");
        parent->SetAttribute("Layout", "vertical_align");
        document.InsertEndChild(parent);
        for (int level = 0; level < levels; level++) {
            tinyxml2::XMLElement* element = parent->InsertNewChildElement("I");
            element->SetAttribute("ItemIndex", "A");
            element->SetAttribute("Ctx", "NAME");
            element->SetAttribute("Attr", "SUBITEM");
            parent = element->InsertNewChildElement("O");
            parent->SetAttribute("ModeIndex", "On");
        }
    };
    open("p", "", 0);
    EXPECT_EQ(liveItems(), 20);
    stop();
    levels = 300;
    (void)printed([&] { open("p", "", -1); });
    EXPECT_EQ(liveItems(), 0);
    EXPECT_THAT(platform().log, testing::Not(IsEmpty())) << "the bound is told";
}
