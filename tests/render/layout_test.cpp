// The other layouts.
#include "tests/render/render_test.h"

using namespace fake;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class LayoutTest : public RenderTest {
protected:
    // Every kind of row, the first one selected, and an address that is being edited.
    void showAll(const std::string& attributes)
    {
        setText("Fps", "", "30");
        setText("Ip", "", "192.168");
        setNumber("Zoom", 0, 100, 1, 50);
        show(R"(<I ItemIndex="IpMode" Attr="SUBITEM" PicType="IPTYPE"> <O ModeIndex="DhcpIp">
                    <I ItemIndex="Sub" Ctx="NAME" PicType="SUBTYPE"/> </O> </I>
                <I ItemIndex="Zoom" ValType="NUMERICAL"/> <I ItemIndex="Ip" Attr="EDITABLE"/>
                <I ItemIndex="Fps" Attr="STATUS" ShowValue=""/> <I ItemIndex="More" Attr="SUBPAGE" SubPage="more"/>
                <I ItemIndex="Restart" Attr="CONFIRM_POP_BTN" Line="1" ItemPos="Center" ConfirmPage="ask"/>)",
             attributes);
        itemOf("Ip").bEditing = 1;
        itemOf("Ip").s32EditCursor = 6;
    }

    // What ends a list when it stands below "IpMode": an address that comes by itself.
    static void makeAutomatic(tagITEM_NODE_S& item)
    {
        setField(item.acItemIndex, "DnsMode");
        setField(item.acValue[0], "AutoMode");
        item.s32ValCnt = 1;
    }

    const std::string tolvane = "Layout='vertical_tolvane_align' Title='T' TitlePos='Left'";
    const std::string paged = "Layout='vertical_align_keth' Title='T' TitlePos='Left' CurPagesNum='1/2' NextPage='b' "
                              "PrevPage='a'";
    const Config large = {1, 2, 1, {0.05f, 0.01851f, 0.26041f, 0.46296f}}; // 1000 by 1000 at 192,40, style 1
    const Config menu = {0, 2, 0, {0.1f, 0.1f, 0.8f, 0.8f}};               // 1536 by 864 at 192,108
};

TEST_F(LayoutTest, TolvaneList)
{
    restart();
    showAll(tolvane);
    expect(R"(
        T at 50,10 bold 30 amber
        nav_arrow at 20,60 size 30x30 | IpMode at 60,60 plain 30 white | DhcpIp at 600,60
        Sub at 70,110 bold 30 grey
        Zoom at 60,160 plain 30 grey | value at 600,160 size 350x30
        Ip at 60,210 plain 30 grey
        white line at 720,246 size 20x6
        192.168 at 600,210 plain 30 grey
        Fps at 60,260 plain 30 grey | 30 at 600,260
        More at 60,310 bold 30 grey
        Restart at 430,390 bold 30 grey
        amber line at 50,900 size 900x10
        nav_move at 50,930 size 150x50 | nav_enter at 250,930 size 150x50 | nav_change_value at 450,930 size 290x50
        Press at 60,850 bold 30 white
    )");
    tagITEM_NODE_S& sub = itemOf("Sub");
    sub.bActive = 1; // takes the brightness over; the parent keeps its arrow
    expect(R"(
        T at 50,10 bold 30 amber
        nav_arrow at 20,60 size 30x30 | IpMode at 60,60 plain 30 grey | DhcpIp at 600,60
        nav_arrow at 30,110 size 30x30 | Sub at 70,110 bold 30 white
        ...
    )");
    itemOf("IpMode").bActive = 0;
    for (const auto& [kind, picture] : {std::pair(SUBTYPE, " | nav_change_value at 250,930 size 290x50"),
                                        {MAINTYPE, " | nav_enter at 250,930 size 150x50"},
                                        {CONFIRMTYPE, " | nav_set at 250,930 size 150x50"},
                                        {static_cast<tagITEM_PIC_TYPE_E>(9), ""}}) {
        sub.enPicType = kind;
        expect(format("...\nnav_move at 50,930 size 150x50%s\nPress at 60,850 bold 30 white", picture));
    }
    sub.bActive = 0;
    expect("...\namber line at 50,900 size 900x10\nPress at 60,850 bold 30 white");
    restart(large); // one size by height, no indent, a row lower than the arrow, hints that are cut below
    calls().lineHeight = 21;
    showAll("Layout='vertical_tolvane_align'");
    makeAutomatic(itemOf("Sub")); // doesn't end this list
    platform().language = "TraditionalChinese";
    expect(R"(
        nav_arrow at 192,6 size 30x30 | IpMode at 50,10 tc 45 white | DhcpIp at 600,10
        Sub at 50,51 bold 45 grey
        Zoom at 50,92 tc 45 grey | value at 600,92 size 350x21
        ...
        amber line at 242,940 size 900x10
        nav_move at 242,970 size 150x50 | nav_enter at 442,970 size 150x30 | nav_change_value at 642,970 size 290x30
        Press at 50,859 bold 45 white
    )");
    EXPECT_THAT(linesOf({"measure"}), testing::Each(Not(HasSubstr(" tc "))));
    itemOf("IpMode").enCtx = NAME; // alone on the first level: amber as a title
    expect("nav_arrow at 192,6 size 30x30 | IpMode at 50,10 bold 45 amber\n...");
    calls().missingFiles = {"tcfont.ttf", "font.ttf"};
    (void)printed([] { (void)redraw(); }); // no font at all: no crash
}

TEST_F(LayoutTest, PagedList)
{
    restart({0, 2, 0, {0.0f, 0.0f, 0.5208f, 0.9186f}}); // the last separator's height isn't a whole number
    showAll(paged);
    EXPECT_THAT(redraw(), HasSubstr("\nwhite line at 70,350 size 860x4\n"));
    restart();
    showAll(paged);
    expect(R"(
        arrow_all at 925,925 size 70x70
        T  1/2 at 70,15 plain 28 white
        white line at 70,60 size 860x10
        IpMode at 70,80 plain 28 white | value at 530,80 size 420x30
        Sub at 95,120 plain 28 grey
        Zoom at 70,160 plain 28 grey | value at 530,160 size 420x30
        Ip at 70,200 plain 28 grey
        white line at 650,233 size 20x5
        192.168 at 530,200 plain 28 grey
        Fps at 70,240 plain 28 white | 30 at 530,240
        More at 70,280 plain 28 grey | nav_arrow at 163,291 size 30x30
        white line at 70,360 size 860x5
        restart at 430,385 size 40x40 | Restart at 470,375 plain 28 grey
        Press at 70,850 plain 28 white
    )");
    EXPECT_THAT(linesOf({"alpha"}),
                testing::ElementsAre("alpha 420x30 191", "alpha nav_arrow 30x30 191", "alpha restart 40x40 191"));
    page->stTurn.bNextPage = 0;
    expect("arrow_top at 925,925 size 70x70\nT  1/2 at 70,15 plain 28 white\n...");
    std::swap(page->stTurn.bNextPage, page->stTurn.bPrevPage);
    setField(page->acTitle, "abcdefghijklmnopqrstuvwxyz.,");
    expect("arrow_bottom at 925,925 size 70x70\nabcdefghijklmnopqrstuvwxyz.,  1 at 70,15 plain 28 white\n...");
    page->stTurn.bCurPagesNum = 0;
    EXPECT_EQ(osdMenuDrawTurnArrow(&page->stTurn), 0);
    makeAutomatic(itemOf("Sub"));
    expect("abcdefghijklmnopqrstuvwxyz., at 70,15 plain 28 white\n...\nSub at 95,120 plain 28 grey\n"
           "Press at 70,850 plain 28 white");
    restart(large); // one size, no indent, no title
    showAll("Layout='vertical_align_keth'");
    itemOf("Zoom").enItemPos = ITEM_POS_RIGHT;
    expect(R"(
        IpMode at 45,140 plain 42 white | value at 530,140 size 420x30
        Sub at 45,180 plain 42 grey
        Zoom at 736,220 plain 42 grey | value at 530,220 size 420x30
        ...
    )");
    itemOf("IpMode").bLine = 1; // on an empty cursor
    itemOf("Sub").bActive = 1;
    expect("white line at 70,20 size 860x5\nIpMode at 45,35 plain 42 grey | value at 530,35 size 420x30\n"
           "Sub at 45,75 plain 42 white\n...");
    restart();
    setText("Any", "v", "v");
    show(replaced("KEY_WITH_MSG COMMON MSG_WITH_SUBITEM CONFIRM CONFIRM_POP ", "(\\w+) ",
                  "<I ItemIndex='Any' Ctx='NAME_VAL' Value='v' Attr='$1'/>") +
             replaced("FactoryRestore RestoreWB RestoreImg RestoreExp Restart Confirm ", "(\\w+) ",
                      "<I ItemIndex='$1' Attr='CONFIRM_POP_BTN'/>"),
         "Layout='vertical_align_keth'");
    setField(itemsOf(*page)[2]->acValue[0], "v");
    expect(R"(
        Any at 45,140 plain 28 white | value at 530,140 size 420x30
        Any at 45,180 plain 28 grey | value at 530,180 size 420x30
        Any at 45,220 plain 28 grey | value at 530,220 size 420x30
        Any at 45,260 plain 28 grey | v at 530,260
        Any at 45,300 plain 28 grey | v at 530,300
        default at 45,350 size 40x40 | FactoryRestore at 85,340 plain 28 grey
        default at 45,390 size 40x40 | RestoreWB at 85,380 plain 28 grey
        default at 45,430 size 40x40 | RestoreImg at 85,420 plain 28 grey
        default at 45,470 size 40x40 | RestoreExp at 85,460 plain 28 grey
        restart at 45,510 size 40x40 | Restart at 85,500 plain 28 grey
        confirm at 45,550 size 40x40 | Confirm at 85,540 plain 28 grey
        Press at 70,850 plain 28 white
    )");
    itemOf("Any").enAttr = TITLE_LINE; // bright, selected or not
    itemOf("Any").bActive = 0;
    expect("Any at 45,140 plain 28 white | value at 530,140 size 420x30\n...");
}

TEST_F(LayoutTest, Popups)
{
    const struct {
        const char* layout;
        int call; // that sets the size of the item that opens the line
        std::string rows, behind, bold, cells, alone;
    } popups[] = {{"horizontal_align", 3, R"(
                      Format at 900,464 plain 32 grey
                      Yes at 834,537 plain 32 white | No! at 1026,537 plain 32 grey)",
                   "Format at 900,464 plain 32 grey | No! at 1026,464",
                   "Yes at 834,537 bold 32 grey | No! at 1026,537 plain 32 grey",
                   "Yes at 738,43 bold 32 grey | No! at 1058,43 plain 32 grey",
                   "Yes at 738,43 bold 32 grey\nNo! at 806,464 plain 32 grey"},
                  {"horizontal_align_keth", 5, R"(
                      Format at 900,464 plain 28 grey
                      Data will be lost at 790,515 plain 28 grey
                      Yes at 674,566 plain 28 white | No! at 1186,566 plain 28 grey)",
                   "Data will be lost at 790,515 plain 28 grey | No! at 1186,515",
                   "Yes at 674,515 plain 28 grey | No! at 1186,515", "Yes at 418,21 plain 28 grey | No! at 1270,21",
                   "Yes at 418,21 plain 28 grey\nNo! at 550,464 plain 28 grey"}};
    for (const auto& popup : popups) {
        restart(menu);
        show(R"(<I ItemIndex="Yes" Attr="SUBITEM" ItemCnt="2"> <O ModeIndex="value"> <I ItemIndex="Hidden"/> </O> </I>
                <I ItemIndex="No!" Attr="CONFIRM" ItemCnt="2" ItemIndexOnLine="1"/>)",
             std::string("Title='Format' TitlePos='Center' Layout='") + popup.layout + "'");
        setField(page->acPageMsg, "Data will be lost");
        tagITEM_NODE_S& yes = itemOf("Yes");
        tagITEM_NODE_S& no = itemOf("No!");
        EXPECT_THAT(redraw(), EndsWith(" size 5x216\n" + joined(linesIn(popup.rows), "\n") + "\n"));
        failCall("TTF_SetFontSize", popup.call);
        EXPECT_EQ(printed([&] { expect("...\n" + popup.behind); }), "F L\n");
        enMenuStyle = 1;
        page->acPageMsg[0] = '\0';
        yes.bActive = 2; // bold in one skin and layout, and grey
        expect("...\n" + popup.bold);
        failCall("TTF_RenderUTF8_Blended", 2);
        EXPECT_EQ(printed([] { EXPECT_THAT(redraw(), Not(HasSubstr("Yes"))); }), "F L failed\n");
        page->bTitle = yes.s32ItemCnt = 0; // no cell at all, and one of three: from the top of the canvas
        no.s32ItemCnt = 3;
        no.s32ItemIndexOnLine = 2;
        expect("...\n" + popup.cells);
        no.s32ItemCnt = 1;
        expect("...\n" + popup.alone);
        no.enItemPos = ITEM_POS_CENTER; // one cell, whatever its index
        EXPECT_THAT(redraw(), HasSubstr("No! at 930,464"));
    }
}

TEST_F(LayoutTest, IconGrid)
{
    const std::string items = replaced("Image Net Video Audio Info ", "(\\w+) ",
                                       "<I ItemIndex='$1' Ctx='ICON_TXT' Attr='CONST_TXT' Pic='pic$1'/>");
    for (const auto& [perLine, cells] :
         {std::pair(4, "230x174 76,17; 230x174 459,17; 230x174 842,17; 230x174 1225,17; 230x174 76,234; "),
          {0, "0x0 76,17; 0x0 229,17; 0x0 382,17; 0x0 535,17; 0x0 688,17; "},
          {3, "358x247 76,17; 358x247 587,17; 358x247 1098,17; 358x247 76,307; 358x247 587,307; "}}) {
        restart(menu);
        show(items, format("Layout='icon' CountPerLine='%d'", perLine));
        (void)printed([] { (void)redraw(); });
        std::string drawn;
        for (const tagITEM_NODE_S* item : itemsOf(*page)) {
            drawn += format("%dx%d %d,%d; ", item->stRect.w, item->stRect.h, item->stRect.x, item->stRect.y);
        }
        EXPECT_EQ(drawn, cells);
    }
    page->s32SelIdx = 1; // counts, not who is active
    setField(itemOf("Net").acSelectPic, "selNet");
    expect(R"(
        picImage at 76,17 size 358x172
        Image at 205,195 plain 28 grey
        picNet at 587,17 size 358x172
        Net at 736,195 plain 28 grey
        white line at 736,250 size 60x4
        picVideo at 1098,17 size 358x172
        Video at 1227,195 plain 28 grey
        picAudio at 76,307 size 358x172
        Audio at 205,485 plain 28 grey
        picInfo at 587,307 size 358x172
        Info at 726,485 plain 28 grey
    )");
    const std::string first = "picImage at 76,17 size 358x172\nImage at 205,195 plain 28 grey\n";
    enMenuStyle = 1;
    expect(first + "selNet at 587,17 size 358x172\nNet at 736,195 bold 28 grey\nwhite line at 736,250 size 60x4\n...");
    page->s32SelIdx = 5; // past the last
    expect(first +
           "picNet at 587,17 size 358x172\nNet at 736,195 plain 28 grey\npicVideo at 1098,17 size 358x172\n...");
    gstMenuMgr.f32Scale = 1.5f;
    EXPECT_THAT(redraw(), HasSubstr("Image at 205,195 plain 42 grey\n"));
    platform().language = "German";
    EXPECT_THAT(redraw(), HasSubstr("Image at 205,195 plain 48 grey\n"));
    platform().language = "English";
    const std::string behind = "\npicNet at 587,17 size 358x172\nNet at 736,195 plain 42 grey\n";
    const std::string image = "\npicImage at 76,17 size 358x172\n";
    for (const auto& [call, output, rows] :
         {std::tuple("language", "F L Get Language failed\n", image + "Image at 205,195 plain 48 grey\npicNet"),
          {"TTF_SetFontSize", "F L\n", behind},
          {"access", "/picImage.bmp\nF L failed\n", behind},
          {"TTF_RenderUTF8_Blended", "F L failed\n", replaced(image, "\n$", " | picNet at 587,17")}}) {
        failCall(call);
        EXPECT_THAT(printed([rows = rows] { EXPECT_THAT(redraw(), testing::StartsWith(rows)); }), EndsWith(output));
    }
}

TEST_F(LayoutTest, FailingCallLeavesTheRestOfTheList)
{
    const std::map<std::string, std::string> layouts = {
        {"vertical", "Title='T' TitlePos='Left'"}, {"tolvane", tolvane}, {"paged", paged}};
    // the call that fails, what is printed at last, a part of what is drawn
    for (const auto& row : tableIn(R"(
        vertical | TTF_SetFontSize 5         | F L  | grey; Zoom at 20,60 plain 28 grey
        vertical | TTF_RenderUTF8_Blended 2  | acItemIndex = IpMode | grey; Zoom at 20,60 plain 28 grey
        vertical | TTF_RenderUTF8_Blended 3  |      | IpMode at 20,60 plain 28 white; Sub at 30,110 bold 24 grey
        tolvane  | language 2                | F L failed | amber; Zoom at 60,60 tc 30 grey
        tolvane  | TTF_SetFontSize 5         | F L  | amber; Zoom at 60,60 tc 30 grey
        tolvane  | TTF_RenderUTF8_Blended 2  | acItemIndex = IpMode | Zoom at 60,60 tc 30 grey
        tolvane  | TTF_RenderUTF8_Blended 3  |      | IpMode at 60,60 tc 30 white; Sub at 70,110 bold 30 grey
        tolvane  | access 1                  | nav_arrow.bmp | amber; IpMode at 60,60 tc 30 white
        tolvane  | access 5                  | nav_enter.bmp; F L failed | nav_move at 50,930 size 150x50; Press at
        paged    | TTF_SetFontSize 1         | F L  | size 70x70; IpMode at 70,140 plain 28 white
        paged    | TTF_RenderUTF8_Blended 1  | acItemIndex = ; F-L OSD_MENU_RenderTxt failed
            | size 70x70; IpMode at 70,140 plain 28 white
        paged    | TTF_SetFontSize 3         | F L; F L failed | size 860x10; Zoom at 70,80 plain 28 grey
        paged    | TTF_RenderUTF8_Blended 2  | acItemIndex = IpMode; F-L OSD_MENU_RenderTxt failed; F L failed
            | size 860x10; Zoom at 70,80 plain 28 grey
        paged    | TTF_RenderUTF8_Blended 3  | F L failed | IpMode at 70,80 plain 28 white; Sub at 95,120 plain 28 grey
        paged    | TTF_RenderUTF8_Blended 12 | F L failed | restart at 430,385 size 40x40; Press at
        paged    | access 7 | [F:L] Draw confirm fail | size 860x5; Restart at 430,375 plain 28 grey
    )")) {
        restart();
        showAll(layouts.at(row[0]));
        platform().language = "TraditionalChinese"; // with a font to close
        const std::vector<std::string> call = matched(row[1], "(.*) (.*)");
        failCall(call[0], std::stoi(call[1]));
        std::string drawn;
        const std::string output = printed([&] { drawn = redraw(); });
        EXPECT_THAT(replaced(drawn, "\n", "; "), HasSubstr(row[3])) << row[1];
        EXPECT_THAT(replaced(output, "\n", "; "), EndsWith(row[2] + (row[2].empty() ? "" : "; "))) << row[1];
        EXPECT_EQ(linesOf({"log 3 Load nav_arrow"}).size(), row[2].rfind("nav_arrow", 0) == 0 ? 1u : 0u) << row[1];
        EXPECT_EQ(calls().fonts.size(), 2u) << row[1];
        platform().language = "English";
    }
}
