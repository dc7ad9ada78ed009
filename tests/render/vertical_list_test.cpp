// The vertical list, and what all lists share: value texts, live values, the caret, the end behind an automatic mode.
#include "tests/render/render_test.h"

using namespace fake;

class VerticalListTest : public RenderTest {
protected:
    void SetUp() override
    {
        MenuTest::SetUp();
        setText("Gain", "Auto:Low", "Auto");
        setNumber("Zoom", 0, 100, 1, 50);
        restart();
    }
};

TEST_F(VerticalListTest, PlacesTitleRowsValuesAndMessage)
{
    show(R"(<I ItemIndex="Gain"/> <I ItemIndex="More" Attr="SUBPAGE" SubPage="more"/>
            <I ItemIndex="Zoom" ValType="NUMERICAL"/> <I ItemIndex="Empty"/>
            <I ItemIndex="Apply" Attr="CONFIRM_POP_BTN" ItemPos="Center" ConfirmPage="ask"/>)",
         "Title='Image' TitlePos='Center'");
    expect(R"(
        Image at 10,10 bold 32 grey
        Gain at 20,60 plain 28 white | Auto at 505,60
        More at 20,110 bold 28 grey
        Zoom at 20,160 plain 28 grey | value at 505,160 size 445x30
        Empty at 20,210 plain 28 grey
        Apply at 450,290 bold 28 grey
        Press at 20,920 bold 28 white
    )");
    EXPECT_THAT(
        linesOf({"blit block", "blit plain 28 grey '50'"}),
        testing::ElementsAre("blit block 15x30 at 148,0 on 445x30", "blit plain 28 grey '50' at 333,0 on 445x30"));
    EXPECT_EQ(linesOf({"measure"}).front(), "measure plain 32 'Image'") << "in the regular font, at the row's size";
    page->bKeyMsg = 2; // only exactly 1 is a pending line
    expect("...\nApply at 450,290 bold 28 grey\n");
    page->bKeyMsg = 1;
    itemOf("Gain").enCtx = NAME_BAR_VAL; // a text on a bar stands at its place, and without one at the left end
    setField(itemOf("Zoom").acValue[1], "edit");
    itemOf("Zoom").enValType = EDITTXT;
    itemOf("Gain").s32CurIdx = 1;
    (void)redraw();
    EXPECT_THAT(linesOf({"blit block"}),
                testing::ElementsAre("blit block 15x30 at 296,0 on 445x30", "blit block 15x30 at 0,0 on 445x30"));
}

TEST_F(VerticalListTest, OtherSkinsHaveOneSizeAndNoIndent)
{
    restart({1, 2, 1, {0.0f, 0.0f, 0.26041f, 0.46296f}}); // 1000 by 1000 on the large base
    show(R"(<I ItemIndex="Gain"/> <I ItemIndex="Mode" Ctx="NAME" Attr="SUBITEM"> <O ModeIndex="only">
            <I ItemIndex="Empty"/> </O> </I>)",
         "Title='Top' TitlePos='Left'");
    expect(R"(
        Top at 10,10 bold 37 grey
        Gain at 10,60 bold 37 white | Auto at 505,60
        Mode at 10,110 bold 37 grey
        Empty at 10,160 plain 37 grey
        Press at 10,920 bold 37 white
    )");
    enMenuStyle = 2; // no other font for what is selected
    expect("Top at 10,10 bold 37 grey\nGain at 10,60 plain 37 white | Auto at 505,60\n...");
}

TEST_F(VerticalListTest, SubItemsFollowDepthFirst)
{
    show(R"(<I ItemIndex="Mode" Attr="SUBITEM">
            <O ModeIndex="A"> <I ItemIndex="Hidden" Ctx="NAME"/> </O>
            <O ModeIndex="B"> <I ItemIndex="Inner" Attr="SUBITEM"> <O ModeIndex="X"> <I ItemIndex="Deep" Ctx="NAME"/>
                </O> </I> <I ItemIndex="Next" Ctx="NAME"/> </O> </I>
            <I ItemIndex="Last" Attr="CONFIRM_POP_BTN" ConfirmPage="ask"/>)");
    tagITEM_NODE_S& mode = itemOf("Mode");
    itemOf("Hidden").bActive = 1; // of another option
    mode.s32CurIdx = 1;
    page->bKeyMsg = 0;
    expect(R"(
        Mode at 10,10 plain 32 white | B at 505,10
        Inner at 20,60 plain 28 grey | X at 505,60
        Deep at 30,110 bold 24 grey
        Next at 20,160 bold 28 grey
        Last at 10,240 bold 32 grey
    )");
    itemOf("Inner").bActive = 1; // a selected sub-item takes the brightness over, one level at a time
    itemOf("Deep").bActive = 1;
    expect(R"(
        Mode at 10,10 plain 32 grey | B at 505,10
        Inner at 20,60 plain 28 grey | X at 505,60
        Deep at 30,110 bold 24 white
        ...
    )");
    mode.s32CurIdx = 0;
    expect("Mode at 10,10 plain 32 grey | A at 505,10\nHidden at 20,60 bold 28 white\n...");
}

TEST_F(VerticalListTest, CaretUnderTheEditedDigit)
{
    setText("Ip", "", "192.168.001.020");
    show(R"(<I ItemIndex="Ip" Attr="EDITABLE"/>)");
    page->bKeyMsg = 0;
    tagITEM_NODE_S& item = itemOf("Ip");
    const std::string rows = "Ip at 10,10 plain 32 white | 192.168.001.020 at 505,10\n";
    expect(rows);
    setField(item.acValue[1], "1\t2.168.001.020"); // a digit that isn't wide
    item.bEditing = 1;
    for (const auto& [cursor, left, width] : // the last ones behind the text
         {std::tuple(0, 505, 20),
          {-3, 505, 20},
          {1, 525, 20},
          {5, 605, 20},
          {6, 645, 20},
          {31, 825, 0},
          {9999, 825, 0}}) {
        item.s32EditCursor = cursor;
        expect(format("Ip at 10,10 plain 32 white\nwhite line at %d,46 size %dx6\n"
                      "1\t2.168.001.020 at 505,10 plain 32 white",
                      left, width));
    }
    item.enCtx = NAME_VAL; // has no caret
    (void)redraw();
    EXPECT_THAT(linesOf({"fill"}), testing::SizeIs(1)) << "the background";
}

TEST_F(VerticalListTest, ValueTexts)
{
    tagITEM_NODE_S item = {};
    char text[OSD_TEXT_LEN] = {};
    int position = -5;
    int count = -6;
    const auto value = [&](int expected = 0) {
        EXPECT_EQ(osdMenuGetItemValInfo(&item, text, &position, &count), expected);
        return format("%s %d/%d", text, position, count);
    };
    for (const auto& [min, max, step, now, expected] :
         {std::tuple(0, 100, 1, 50, "50 50/101"),
          {-10, 90, 5, 41, "41 10/21"},
          {0, 10, 0, 5, "5 0/1"},
          {INT32_MIN, INT32_MAX, -1, INT32_MAX, "2147483647 -2147483648/-2147483648"}}) {
        std::tie(item.s32Min, item.s32Max, item.s32Step, item.s32Cur) = std::tuple(min, max, step, now);
        EXPECT_EQ(value(), expected);
    }
    item = {};
    item.s32ValCnt = 3;
    setField(item.acValue[1], "B");
    setField(item.acValue[2], "C");
    for (const auto& [type, index, expected, result] : {std::tuple(OPTTXT, 2, "C 2/3", 0),
                                                        {EDITTXT, 2, "B 2/3", 0},
                                                        {static_cast<tagITEM_VAL_TYPE_E>(9), 2, "B 2/3", -1},
                                                        {OPTTXT, 1000000, " 1000000/3", 0}}) {
        item.enValType = type;
        item.s32CurIdx = index;
        EXPECT_EQ(value(result), expected);
    }
}

TEST_F(VerticalListTest, LiveValuesAreReadAtEachDraw)
{
    setText("Fps", "", "30");
    setText("IpAddr", "", "10.0.0.7");
    platform().words["30"] = "thirty";
    show("<I ItemIndex='IpAddr' Attr='CONST_TXT' Ctx='NAME_VAL' ShowValue='1'/>"
         "<I ItemIndex='Fps' Attr='CONST_TXT' Ctx='NAME_VAL' ShowValue='1'/>");
    setText("IpAddr", "", "10.0.0.8");
    page->bKeyMsg = 0;
    expect(R"(
        IpAddr at 10,10 plain 32 white | 10.0.0.8 at 505,10
        Fps at 10,60 plain 32 grey | thirty at 505,60
    )");
    setText("Fps", "", "25");
    platform().language = "German"; // the language of now
    expect("...\nFps at 10,60 plain 32 grey | d.25 at 505,60\n");
    platform().untranslated = {"10.0.0.8", "25"}; // an address needs no translation
    expect("IpAddr at 10,10 plain 32 white | 10.0.0.8 at 505,10\nFps at 10,60 plain 32 grey\n");
}

TEST_F(VerticalListTest, AutomaticAddressEndsTheWalk)
{
    setText("Other", "AutoMode", "AutoMode");
    // mode, its options, sub-item of the first one, its value, option on screen, saved option
    for (const auto& row : tableIn(R"(
        IpMode | DhcpIp   | StaticIp | DnsMode | AutoMode | 0 | 0 | ends
        IpMode | StaticIp | DhcpIp   | DnsMode | AutoMode | 0 | 1 | ends
        IpMode | DhcpIp   | StaticIp | DnsMode | AutoMode | 0 | 1 |
        IpMode | DhcpIp   | StaticIp | DnsMode | AutoMode | 1 | 0 |
        IpMode | DhcpIp   | StaticIp | DnsMode | Manual   | 0 | 0 |
        IpMode | DhcpIp   | StaticIp | Dns1    | AutoMode | 0 | 0 |
        Mode   | DhcpIp   | StaticIp | DnsMode | AutoMode | 0 | 0 |
    )")) {
        SCOPED_TRACE(joined(row, " "));
        setText(row[3], row[4].c_str(), row[4].c_str());
        show("<I ItemIndex='" + row[0] + "' Attr='SUBITEM' Ctx='NAME'> <O ModeIndex='" + row[1] +
             "'> <I ItemIndex='Other'/> <I ItemIndex='" + row[3] + "'/> </O> <O ModeIndex='" + row[2] +
             "'/> </I> <I ItemIndex='Behind'/>");
        tagITEM_NODE_S* mode = itemAt(page->stItemList, 0);
        mode->s32CurIdx = std::stoi(row[5]);
        mode->s32SavedIdx = std::stoi(row[6]);
        EXPECT_EQ(osdMenuJudgeNetWorkofDhcp(mode), row[7] == "ends" ? 1 : 0);
        EXPECT_EQ(redraw().find("Behind") == std::string::npos, row[7] == "ends");
        EXPECT_THAT(redraw(), testing::HasSubstr("Press")) << "the message line is drawn all the same";
        platform().language = "German"; // the labels are compared, not the keys
        EXPECT_EQ(osdMenuJudgeNetWorkofDhcp(mode), 0);
        restart();
        platform().language = "English";
    }
}

TEST_F(VerticalListTest, MessageLineIsForListsOnly)
{
    show("", "Layout='icon' CountPerLine='3'");
    EXPECT_EQ(OSD_MENU_HandleKeyMsg({0, 300, 0, 30}), 0);
    EXPECT_THAT(linesOf({"blit"}), testing::IsEmpty());
    show("");
    EXPECT_EQ(OSD_MENU_HandleKeyMsg({0, 300, 0, 30}), 0);
    EXPECT_THAT(linesOf({"blit"}), testing::ElementsAre("blit bold 28 white 'Press' at 20,920"))
        << "no argument counts";
    failCall("SDL_UpperBlit");
    EXPECT_EQ(OSD_MENU_FillData2Canvas(nullptr, {7, 8, 1, 1}), 0);
    EXPECT_EQ(OSD_MENU_FillData2Canvas(nullptr, {7, 8, 1, 1}), 0) << "a missing source is no failure";
}
