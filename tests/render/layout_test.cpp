// The other layouts on recorded calls; the fake fonts are 20 pixels a byte wide and 30 high. A text reads
// "p28w 'Gain' 20,60": plain, 28 pixels, white.

#include "menu/core/flat_list.h"
#include "tests/fake/menu_test.h"

using namespace fake;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class LayoutTest : public MenuTest {
protected:
    void restart(const Config& config = {}) // else a canvas of 1000 by 1000, style 0
    {
        stop();
        start(config);
        setText("Fps", "", "30");
    }

    // What one redraw puts onto the canvas, behind the background.
    static std::string redraw()
    {
        calls().lines.clear();
        EXPECT_EQ(OSD_MENU_RenderCanvas(), 0);
        std::string rows;
        for (const std::string& line : linesOf({"blit ", "fill "})) {
            if (line.find(" on ") == std::string::npos && line.find("a0a0a") == std::string::npos) {
                const std::string row =
                    replaced(line.substr(line[0] == 'b' ? 5 : 0), R"((\w)\w* (\d+) (\w)\w* ('.*'))", "$1$2$3 $4");
                rows += (rows.empty() ? "" : "; ") + replaced(row, " at ", " ");
            }
        }
        return rows;
    }

    // A list with every kind of row, the first one selected.
    static tagPAGE_NODE_S* addList(tagPAGE_LAYOUT_E layout, const char* title)
    {
        tagPAGE_NODE_S* page = addPage(layout, title);
        page->bKeyMsg = page->stTurn.bCurPagesNum = page->stTurn.bNextPage = page->stTurn.bPrevPage = 1;
        setField(page->acKeyMsg, "Press");
        setField(page->stTurn.acCurPagesNum, "1/2");
        tagITEM_NODE_S* gain = addItem(page, "IpMode", NAME_VAL, SUBITEM);
        setOptions(gain, {"t.DhcpIp"});
        gain->bActive = 1;
        gain->enPicType = IPTYPE;
        addSubItem(gain, 0, "Sub", NAME, COMMON)->enPicType = SUBTYPE;
        setRange(addItem(page, "Zoom", NAME_BAR_VAL, COMMON), 0, 100, 1, 50);
        tagITEM_NODE_S* address = addItem(page, "Ip", NAME_IP_VAL, EDITABLE);
        address->enValType = EDITTXT;
        address->bEditing = 1;
        address->s32EditCursor = 6;
        setField(address->acValue[1], "192.168");
        addItem(page, "Fps", NAME_VAL, STATUS)->bShowValue = 1;
        addItem(page, "More", NAME, SUBPAGE);
        tagITEM_NODE_S* button = addItem(page, "Restart", NAME, CONFIRM_POP_BTN);
        button->bLine = 1;
        button->enItemPos = ITEM_POS_CENTER;
        return page;
    }

    const Config large = {1, 2, 1, {0.05f, 0.01851f, 0.26041f, 0.46296f}}; // 1000 by 1000 at 192,40, style 1
    const Config menu = {0, 2, 0, {0.1f, 0.1f, 0.8f, 0.8f}};               // 1536 by 864 at 192,108
};

TEST_F(LayoutTest, TolvaneList)
{
    restart();
    tagITEM_NODE_S* mode = itemAt(addList(PAGE_LAYOUT_VERTICAL_TOLVANE, "T")->stItemList, 0);
    EXPECT_EQ(redraw(), "b30a 'T' 50,10; nav_arrow 30x30 20,60; p30w 'IpMode' 60,60; p30w 't.DhcpIp' 600,60; "
                        "b30g 'Sub' 70,110; p30g 'Zoom' 60,160; 350x30 600,160; p30g 'Ip' 60,210; "
                        "fill 720,246 20x6 white; p30g '192.168' 600,210; p30g 'Fps' 60,260; p30g 't.30' 600,260; "
                        "b30g 'More' 60,310; b30g 'Restart' 430,390; fill 50,900 900x10 amber; "
                        "nav_move 150x50 50,930; nav_enter 150x50 250,930; nav_change_value 290x50 450,930; "
                        "b30w 'Press' 60,850");
    tagITEM_NODE_S* sub = itemAt(mode->astSubList[0], 0);
    sub->bActive = 1; // takes the brightness over; the parent keeps its arrow
    EXPECT_THAT(redraw(), HasSubstr("nav_arrow 30x30 20,60; p30g 'IpMode' 60,60; p30g 't.DhcpIp' 600,60; "
                                    "nav_arrow 30x30 30,110; b30w 'Sub' 70,110; p30g"));
    mode->bActive = 0;
    EXPECT_THAT(redraw(), HasSubstr("nav_move 150x50 50,930; nav_change_value 290x50 250,930; b30w"));
    for (const auto& [kind, hints] : {std::pair(0, "nav_enter 150x50 250,930; b30w"),
                                      {3, "nav_set 150x50 250,930; b30w"},
                                      {9, "nav_move 150x50 50,930; b30w"}}) {
        sub->enPicType = static_cast<tagITEM_PIC_TYPE_E>(kind);
        EXPECT_THAT(redraw(), HasSubstr(hints));
    }
    sub->bActive = 0;
    EXPECT_THAT(redraw(), testing::AllOf(Not(HasSubstr("nav_")), HasSubstr("amber; b30w 'Press'")));
    restart(large); // one size by height, no indent, a row lower than the arrow, hints that are cut below
    calls().lineHeight = 21;
    mode = itemAt(addList(PAGE_LAYOUT_VERTICAL_TOLVANE, "")->stItemList, 0);
    EXPECT_THAT(redraw(), testing::StartsWith("nav_arrow 30x30 192,6; p45w 'IpMode' 50,10; p45w 't.DhcpIp' 600,10; "
                                              "b45g 'Sub' 50,51; p45g 'Zoom' 50,92"));
    EXPECT_THAT(redraw(), HasSubstr("fill 242,940 900x10 amber; nav_move 150x50 242,970; nav_enter 150x30 442,970; "
                                    "nav_change_value 290x30 642,970; b45w 'Press' 50,859"));
    platform().language = "TraditionalChinese";
    EXPECT_THAT(redraw(), HasSubstr("t45w 'IpMode' 50,10; t45w 't.DhcpIp' 600,10; b45g 'Sub' 50,51; t45g 'Zoom'"));
    EXPECT_THAT(linesOf({"measure"}), testing::Each(Not(HasSubstr(" tc "))));
    mode->enCtx = NAME; // alone on the first level: amber as a title
    EXPECT_THAT(redraw(), HasSubstr("b45a 'IpMode' 50,10; b45g 'Sub'"));
    calls().missingFiles = {"tcfont.ttf", "font.ttf"};
    (void)printed([] { (void)redraw(); }); // no font at all: no crash
}

TEST_F(LayoutTest, PagedList)
{
    restart();
    tagPAGE_NODE_S* page = addList(PAGE_LAYOUT_VERTICAL_KETH, "T");
    EXPECT_EQ(redraw(), "arrow_all 70x70 925,925; p28w 'T  1/2' 70,15; fill 70,60 860x10 white; "
                        "p28w 'IpMode' 70,80; 420x30 530,80; p28g 'Sub' 95,120; p28g 'Zoom' 70,160; 420x30 530,160; "
                        "p28g 'Ip' 70,200; fill 650,233 20x5 white; p28g '192.168' 530,200; p28w 'Fps' 70,240; "
                        "p28w 't.30' 530,240; p28g 'More' 70,280; nav_arrow 30x30 163,291; fill 70,360 860x5 white; "
                        "restart 40x40 430,385; p28g 'Restart' 470,375; p28w 'Press' 70,850");
    EXPECT_THAT(linesOf({"alpha"}),
                testing::ElementsAre("alpha 420x30 191", "alpha nav_arrow 30x30 191", "alpha restart 40x40 191"));
    page->stTurn.bNextPage = 0;
    EXPECT_THAT(redraw(), testing::StartsWith("arrow_top 70x70 925,925; p28w"));
    std::swap(page->stTurn.bNextPage, page->stTurn.bPrevPage);
    setField(page->acTitle, "abcdefghijklmnopqrstuvwxyz.,");
    EXPECT_THAT(redraw(), HasSubstr("arrow_bottom 70x70 925,925; p28w 'abcdefghijklmnopqrstuvwxyz.,  1' 70,15"));
    page->stTurn.bCurPagesNum = 0;
    EXPECT_THAT(redraw(), testing::StartsWith("p28w 'abcdefghijklmnopqrstuvwxyz.,' 70,15; fill"));
    tagITEM_NODE_S* sub = itemAt(itemAt(page->stItemList, 0)->astSubList[0], 0);
    setField(sub->acItemIndex, "DnsMode"); // the address comes by itself: nothing behind it
    setOptions(sub, {"t.AutoMode"});
    EXPECT_THAT(redraw(), EndsWith("p28g 'Sub' 95,120; p28w 'Press' 70,850"));
    restart(large); // one size, no indent, no title
    page = addList(PAGE_LAYOUT_VERTICAL_KETH, "");
    itemAt(itemAt(page->stItemList, 0)->astSubList[0], 0)->bActive = 1;
    itemAt(page->stItemList, 1)->enItemPos = ITEM_POS_RIGHT;
    EXPECT_THAT(redraw(),
                testing::StartsWith("p42g 'IpMode' 45,140; 420x30 530,140; p42w 'Sub' 45,180; p42g 'Zoom' 736,"));
    itemAt(page->stItemList, 0)->bLine = 1; // on an empty cursor
    EXPECT_THAT(redraw(), testing::StartsWith("fill 70,20 860x5 white; p42g 'IpMode' 45,35; 420x30 530,35"));
    restart();
    page = addPage(PAGE_LAYOUT_VERTICAL_KETH);
    for (const tagITEM_ATTR_E attr : {KEY_WITH_MSG, COMMON, MSG_WITH_SUBITEM, CONFIRM, CONFIRM_POP}) {
        setOptions(addItem(page, "A", NAME_VAL, attr), {"v"});
    }
    for (const char* key : {"FactoryRestore", "RestoreWB", "RestoreImg", "RestoreExp", "Confirm"}) {
        addItem(page, key, NAME, CONFIRM_POP_BTN);
    }
    EXPECT_EQ(redraw(), "p28g 'A' 45,140; 420x30 530,140; p28g 'A' 45,180; 420x30 530,180; p28g 'A' 45,220; "
                        "420x30 530,220; p28g 'A' 45,260; p28g 'v' 530,260; p28g 'A' 45,300; p28g 'v' 530,300; "
                        "default 40x40 45,350; p28g 'FactoryRestore' 85,340; default 40x40 45,390; "
                        "p28g 'RestoreWB' 85,380; default 40x40 45,430; p28g 'RestoreImg' 85,420; "
                        "default 40x40 45,470; p28g 'RestoreExp' 85,460; confirm 40x40 45,510; p28g 'Confirm' 85,500");
}

TEST_F(LayoutTest, Popups)
{
    const std::tuple<tagPAGE_LAYOUT_E, int, std::string, const char*, const char*, const char*, const char*> cases[] = {
        {PAGE_LAYOUT_HORIZONTAL, 3, "p32g 'Format' 900,464; p32w 'Yes' 834,537; p32g 'No!' 1026,537", "1026,464",
         "p32g 'Format' 900,464; b32g 'Yes' 834,537; p32g 'No!' 1026,537", "'Yes' 738,43; p32g 'No!' 1058,43",
         "'No!' 806,464"},
        {PAGE_LAYOUT_HORIZONTAL_KETH, 5,
         "p28g 'Format' 900,464; p28g 'Data will be lost' 790,515; p28w 'Yes' 674,566; p28g 'No!' 1186,566", "1186,515",
         "p28g 'Format' 900,464; p28g 'Yes' 674,515; p28g 'No!' 1186,515", "'Yes' 418,21; p28g 'No!' 1270,21",
         "'No!' 550,464"}};
    for (const auto& [layout, call, rows, behind, bold, cells, alone] : cases) {
        restart(menu);
        tagPAGE_NODE_S* page = addPage(layout, "Format");
        setField(page->acPageMsg, "Data will be lost");
        tagITEM_NODE_S* yes = addItem(page, "Yes", NAME_VAL, SUBITEM);
        setOptions(yes, {"value"});
        addSubItem(yes, 0, "not drawn", NAME, COMMON);
        tagITEM_NODE_S* no = addItem(page, "No!", NAME, CONFIRM);
        yes->s32ItemCnt = no->s32ItemCnt = 2;
        yes->bActive = no->s32ItemIndexOnLine = 1;
        EXPECT_THAT(redraw(), EndsWith(" 5x216 white; " + rows));
        failCall("TTF_SetFontSize", call); // of the item that opens the line
        EXPECT_EQ(printed([behind = behind] { EXPECT_THAT(redraw(), EndsWith(behind)); }), "F L\n");
        enMenuStyle = 1;
        page->acPageMsg[0] = '\0';
        yes->bActive = 2; // bold in one skin and layout, and grey
        EXPECT_THAT(redraw(), EndsWith(bold));
        failCall("TTF_RenderUTF8_Blended", 2);
        EXPECT_EQ(printed([] { EXPECT_THAT(redraw(), Not(HasSubstr("'Yes'"))); }), "F L failed\n");
        page->bTitle = yes->s32ItemCnt = 0; // no cell at all, and one of three: from the top of the canvas
        no->s32ItemCnt = 3;
        no->s32ItemIndexOnLine = 2;
        EXPECT_THAT(redraw(), EndsWith(cells));
        no->s32ItemCnt = 1;
        EXPECT_THAT(redraw(), EndsWith(alone));
        no->enItemPos = ITEM_POS_CENTER; // one cell, whatever its index
        EXPECT_THAT(redraw(), EndsWith("'No!' 930,464"));
    }
}

TEST_F(LayoutTest, IconGrid)
{
    restart(menu);
    tagPAGE_NODE_S* page = nullptr;
    for (const auto& [perLine, cells] :
         {std::pair(4, "230x174 76,17; 230x174 459,17; 230x174 842,17; 230x174 1225,17; 230x174 76,234; "),
          {0, "0x0 76,17; 0x0 229,17; 0x0 382,17; 0x0 535,17; 0x0 688,17; "},
          {3, "358x247 76,17; 358x247 587,17; 358x247 1098,17; 358x247 76,307; 358x247 587,307; "}}) {
        page = addPage(PAGE_LAYOUT_ICON);
        page->s32CountPerLine = perLine;
        page->s32SelIdx = 1;
        for (const char* name : {"Image", "Net", "Video", "Audio", "Info"}) {
            tagITEM_NODE_S* item = addItem(page, name, ICON_TXT, SUBPAGE);
            setField(item->acPic, format("pic%s", name));
            setField(item->acSelectPic, format("sel%s", name));
        }
        (void)printed([] { (void)redraw(); });
        std::string drawn;
        for (const tagITEM_NODE_S* item : osdItems(&page->stItemList)) {
            drawn += format("%dx%d %d,%d; ", item->stRect.w, item->stRect.h, item->stRect.x, item->stRect.y);
        }
        EXPECT_EQ(drawn, cells);
    }
    itemAt(page->stItemList, 0)->bActive = 1; // the page's position counts
    const std::string rest = "picVideo 358x172 1098,17; p28g 'Video' 1227,195; picAudio 358x172 76,307; "
                             "p28g 'Audio' 205,485; picInfo 358x172 587,307; p28g 'Info' 726,485";
    const std::string first = "picImage 358x172 76,17; p28g 'Image' 205,195; ";
    EXPECT_EQ(redraw(), first + "picNet 358x172 587,17; p28g 'Net' 736,195; fill 736,250 60x4 white; " + rest);
    enMenuStyle = 1;
    EXPECT_EQ(redraw(), first + "selNet 358x172 587,17; b28g 'Net' 736,195; fill 736,250 60x4 white; " + rest);
    page->s32SelIdx = 5; // past the last
    EXPECT_EQ(redraw(), first + "picNet 358x172 587,17; p28g 'Net' 736,195; " + rest);
    gstMenuMgr.f32Scale = 1.5f;
    EXPECT_THAT(redraw(), HasSubstr("; p42g 'Image'"));
    platform().language = "German";
    EXPECT_THAT(redraw(), HasSubstr("; p48g 'Image'"));
    platform().language = "English";
    for (const auto& [call, output, rows] :
         {std::tuple("language", "F L Get Language failed\n", "picImage 358x172 76,17; p48g 'Image' 205,195; picNet"),
          {"TTF_SetFontSize", "F L\n", "picNet 358x172 587,17; p42g 'Net'"},
          {"access", "/picImage.bmp\nF L failed\n", "picNet 358x172 587,17; p42g 'Net'"},
          {"TTF_RenderUTF8_Blended", "F L failed\n", "picImage 358x172 76,17; picNet"}}) {
        failCall(call);
        EXPECT_THAT(printed([rows = rows] { EXPECT_THAT(redraw(), testing::StartsWith(rows)); }), EndsWith(output));
    }
}

TEST_F(LayoutTest, FailingCallLeavesTheRestOfTheList)
{
    const tagPAGE_LAYOUT_E tolvane = PAGE_LAYOUT_VERTICAL_TOLVANE, paged = PAGE_LAYOUT_VERTICAL_KETH;
    const char* noTitle = "F L failed, pstItemNode->acItemIndex = \nF-L OSD_MENU_RenderTxt failed\n";
    const char* noRow = "F L failed, pstItemNode->acItemIndex = IpMode\nF-L OSD_MENU_RenderTxt failed\nF L failed\n";
    const std::tuple<tagPAGE_LAYOUT_E, const char*, int, const char*, const char*> cases[] = {
        {tolvane, "language", 2, "F L failed\n", "'T' 50,10; t30g 'Zoom' 60,60"},
        {tolvane, "TTF_SetFontSize", 5, "F L\n", "'T' 50,10; t30g 'Zoom' 60,60"},
        {tolvane, "TTF_RenderUTF8_Blended", 2, "acItemIndex = IpMode\n", "nav_arrow 30x30 20,60; t30g 'Zoom' 60,60"},
        {tolvane, "TTF_RenderUTF8_Blended", 3, "", "'IpMode' 60,60; b30g 'Sub' 70,110"},
        {tolvane, "access", 1, "nav_arrow.bmp\n", "'T' 50,10; t30w 'IpMode' 60,60"},
        {tolvane, "access", 5, "nav_enter.bmp\nF L failed\n", "nav_move 150x50 50,930; b30w 'Press'"},
        {paged, "TTF_SetFontSize", 1, "F L\n", "arrow_all 70x70 925,925; p28w 'IpMode' 70,140"},
        {paged, "TTF_RenderUTF8_Blended", 1, noTitle, "arrow_all 70x70 925,925; p28w 'IpMode' 70,140"},
        {paged, "TTF_SetFontSize", 3, "F L\nF L failed\n", "860x10 white; p28g 'Zoom' 70,80"},
        {paged, "TTF_RenderUTF8_Blended", 2, noRow, "860x10 white; p28g 'Zoom' 70,80"},
        {paged, "TTF_RenderUTF8_Blended", 3, "F L failed\n", "'IpMode' 70,80; p28g 'Sub' 95,120"},
        {paged, "TTF_RenderUTF8_Blended", 12, "F L failed\n",
         "fill 70,360 860x5 white; restart 40x40 430,385; p28w 'Press'"},
        {paged, "access", 7, "[F:L] Draw confirm fail\n", "fill 70,360 860x5 white; p28g 'Restart' 430,375"}};
    platform().language = "TraditionalChinese"; // with a font to close
    for (const auto& [layout, call, n, output, rows] : cases) {
        restart();
        (void)addList(layout, "T");
        failCall(call, n);
        EXPECT_THAT(printed([rows = rows] { EXPECT_THAT(redraw(), HasSubstr(rows)); }), EndsWith(output)) << call << n;
        EXPECT_EQ(platform().log.back().text == "Load nav_arrow.bmp failed", layout == tolvane && n == 1) << call << n;
        EXPECT_EQ(calls().fonts.size(), 2u) << call << n;
    }
}
